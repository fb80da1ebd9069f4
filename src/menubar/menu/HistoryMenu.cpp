#include "HistoryMenu.h"

#include "HelpButton.h"
#include "LocalizedString.h"
#include "StatusMenu.h"
#include "SystemColor.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QWidgetAction>

#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int sideMargin = 15;
constexpr int smallestGap = 12;
constexpr int titleMargin = 1;
constexpr int rowMargin = 4;

QLabel* plainLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

/// A disk's name as a heading and, behind it, what is known of its latest backup.
class RowView final : public QWidget {
public:
    explicit RowView(const HistoryMenu::Row& row)
        : row_(row)
        , label_(new QLabel(this))
    {
        setAccessibleName(row.title());
        label_->setTextFormat(Qt::RichText);
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(sideMargin, rowMargin, sideMargin, rowMargin);
        layout->addWidget(label_);
        showRow();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const auto* menu = qobject_cast<const QMenu*>(parentWidget());
        const auto* chosen = menu ? qobject_cast<const QWidgetAction*>(menu->activeAction()) : nullptr;
        if (!chosen || chosen->defaultWidget() != this)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor ground = palette().color(QPalette::WindowText);
        ground.setAlphaF(0.08F); // fainter than on an item that does something
        painter.setBrush(ground);
        painter.setPen(systemBlueColor(palette()));
        constexpr qreal cornerRadius = 4;
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 0.5, -1.5, -0.5), cornerRadius, cornerRadius);
    }
    void changeEvent(QEvent* event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange)
            showRow();
    }

private:
    /// In one text: of two labels the second would begin a little late.
    void showRow()
    {
        const QString shown = u"<p style=\"white-space:pre\"><b style=\"color:%1\">%2</b>: %3</p>"_s;
        label_->setText(
            shown.arg(systemBlueColor(palette()).name(), row_.heading.toHtmlEscaped(), row_.value.toHtmlEscaped()));
    }

    const HistoryMenu::Row row_;
    QLabel* label_;
};

} // namespace

HistoryMenu::HistoryMenu(QWidget* parent)
    : QMenu(parent)
{
    connect(this, &QMenu::aboutToShow, this, &HistoryMenu::fill);
    connect(this, &QMenu::hovered, this, &HistoryMenu::giveKeyboardTo);
}

void HistoryMenu::setRows(const QList<Row>& rows)
{
    wanted_ = rows;
    if (!isVisible())
        fill();
}

void HistoryMenu::fill()
{
    if (rows_ == wanted_)
        return;
    rows_ = wanted_;
    clear();
    addTitle();
    addSeparator();
    for (const auto& row : std::as_const(rows_))
        addRow(row);
    const auto items = actions();
    for (QAction* item : items)
        item->setMenuRole(QAction::NoRole);
}

/// Qt leaves it where it was: with nobody when the menu opens, with the help button on the rows below it.
void HistoryMenu::giveKeyboardTo(QAction* item)
{
    auto* row = qobject_cast<QWidgetAction*>(item);
    QWidget* view = row ? row->defaultWidget() : nullptr;
    (view && view->focusPolicy() != Qt::NoFocus ? view : this)->setFocus(Qt::TabFocusReason);
}

void HistoryMenu::addTitle()
{
    auto* item = new QWidgetAction(this);
    StatusMenu::setTitle(item, localizedString("latestBackupOfEachDestinationTitle"));
    item->setDefaultWidget(createAllBackupInfoTitleMenuItemView());
    connect(item, &QAction::triggered, this, &HistoryMenu::helpButtonPressed);
    addAction(item);
}

QWidget* HistoryMenu::createAllBackupInfoTitleMenuItemView()
{
    auto view = std::make_unique<QWidget>();
    auto* layout = new QHBoxLayout(view.get());
    layout->setContentsMargins(sideMargin, titleMargin, sideMargin, titleMargin);
    layout->setSpacing(smallestGap);
    auto* help = new HelpButton(view.get());
    help->setAccessibleName(localizedString("helpButtonTitle"));
    layout->addWidget(plainLabel(localizedString("latestBackupOfEachDestinationTitle"), view.get()));
    layout->addStretch();
    layout->addWidget(help, 0, Qt::AlignVCenter);
    view->setFocusProxy(help); // the arrow keys reach the row, and with it the button
    view->setFocusPolicy(Qt::StrongFocus);
    connect(help, &HelpButton::clicked, this, &HistoryMenu::helpButtonPressed);
    return view.release(); // owned by the item that it becomes the widget of
}

void HistoryMenu::addRow(const Row& row)
{
    auto* item = new QWidgetAction(this);
    StatusMenu::setTitle(item, row.title());
    item->setData(row.identifier);
    item->setDefaultWidget(std::make_unique<RowView>(row).release());
    addAction(item);
}

} // namespace quillon
