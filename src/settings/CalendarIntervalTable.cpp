#include "CalendarIntervalTable.h"

#include "Accessibility.h"
#include "CalendarIntervalCellView.h"
#include "SystemColor.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <memory>

namespace quillon {

namespace {

constexpr qreal cornerRadius = 6;
constexpr int border = 3; // keeps the rows clear of the rounded corners

} // namespace

CalendarIntervalTable::CalendarIntervalTable(QWidget* parent)
    : QScrollArea(parent)
{
    setAccessibleRole(*this, QAccessible::Grouping);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::ClickFocus); // its rows stand behind it in the order of the Tab key, which takes some focus
    viewport()->setAutoFillBackground(false);
    auto rows = std::make_unique<QWidget>();
    layout_ = new QVBoxLayout(rows.get());
    layout_->setContentsMargins(0, border, 0, border);
    layout_->setSpacing(0);
    layout_->addStretch();
    setWidget(rows.release());
    widget()->setAutoFillBackground(false);
}

void CalendarIntervalTable::setNumberOfRows(int count)
{
    while (numberOfRows() < count)
        addRow();
    while (numberOfRows() > count)
        removeLastRow();
    updateGeometry();
}

void CalendarIntervalTable::addRow()
{
    auto* view = new CalendarIntervalCellView(widget());
    QWidget* before = this;
    if (!rows_.isEmpty())
        before = rows_.last()->deleteButton();
    rows_.append(view);
    layout_->insertWidget(numberOfRows() - 1, view);
    view->show(); // now, and not when the layout gets round to it: it may be scrolled to
    view->setTabOrderAfter(before);
    Q_EMIT rowAdded(view);
}

void CalendarIntervalTable::removeLastRow()
{
    CalendarIntervalCellView* view = rows_.takeLast();
    view->hide();
    view->disconnect();
    layout_->removeWidget(view);
    view->deleteLater();
}

void CalendarIntervalTable::scrollRowToVisible(int row)
{
    widget()->layout()->activate();
    widget()->adjustSize();
    ensureWidgetVisible(viewAtRow(row), 0, 0);
}

/// Without rows that of a new one: the table keeps its size when the last rule goes.
QSize CalendarIntervalTable::sizeOfRow() const
{
    if (!rows_.isEmpty())
        return rows_.first()->sizeHint();
    return CalendarIntervalCellView().sizeHint();
}

int CalendarIntervalTable::heightOfFirstRow() const
{
    return border + sizeOfRow().height();
}

QSize CalendarIntervalTable::sizeHint() const
{
    const QSize row = sizeOfRow();
    const int scrollBar = numberOfRows() > rowsInView ? verticalScrollBar()->sizeHint().width() : 0;
    return {row.width() + scrollBar, rowsInView * row.height() + 2 * border};
}

QSize CalendarIntervalTable::minimumSizeHint() const
{
    return sizeHint();
}

void CalendarIntervalTable::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
}

/// The ground under the rows.
void CalendarIntervalTable::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.15F);
    painter.setPen(edge);
    // On a dark ground the fields are the darker part, and would not be seen on their own colour.
    constexpr int lighter = 125;
    painter.setBrush(isDark(palette()) ? palette().color(QPalette::Window).lighter(lighter)
                                       : palette().color(QPalette::Base));
    constexpr qreal half = 0.5;
    painter.drawRoundedRect(QRectF(viewport()->rect()).adjusted(half, half, -half, -half), cornerRadius, cornerRadius);
}

} // namespace quillon
