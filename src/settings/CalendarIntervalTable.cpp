#include "CalendarIntervalTable.h"

#include "Accessibility.h"
#include "DateFormatter.h"
#include "LocalizedString.h"
#include "NextBackup.h"
#include "TimePicker.h"
#include "ui_CalendarIntervalCell.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

WheelGuard::WheelGuard(QWidget* control)
    : QObject(control)
{
    control->setFocusPolicy(Qt::StrongFocus); // the wheel brings no focus along
    control->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

CalendarIntervalCellView::CalendarIntervalCellView(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::CalendarIntervalCell>())
{
    ui_->setupUi(this);
    titleDayMenu();
    applyTitles();
    auto& picker = *ui_->calendarIntervalDatePicker;
    ui_->backupTitle->setBuddy(ui_->calendarIntervalDayPopupButton); // whose text screen readers read out with it
    picker.setAccessibleName(ui_->atTimeTitle->text());
    ui_->deleteButton->setAccessibleName(localizedString("deleteRuleTitle"));
    ui_->deleteButton->setToolTip(localizedString("deleteRuleTitle"));

    new WheelGuard(ui_->calendarIntervalDayPopupButton);
    new WheelGuard(&picker);
    connect(ui_->calendarIntervalDayPopupButton, &QComboBox::activated, this, [this] {
        describe();
        Q_EMIT dayChanged();
    });
    connect(&picker, &QTimeEdit::timeChanged, this, [this] {
        describe();
        Q_EMIT timeChanged();
    });
    connect(ui_->deleteButton, &QAbstractButton::clicked, this, &CalendarIntervalCellView::deleteButtonPressed);
}

CalendarIntervalCellView::~CalendarIntervalCellView() = default;

/// Applied again whenever the row is filled: the user may have switched between 12 and 24 hours.
void CalendarIntervalCellView::applyTitles()
{
    ui_->backupTitle->setText(localizedString("backupTitle"));
    ui_->atTimeTitle->setText(localizedString("atTimeTitle"));
    auto& picker = *ui_->calendarIntervalDatePicker;
    const QString format =
        timePickerFormat(DateFormatter::pattern(DateFormatterStyle::None, DateFormatterStyle::Short));
    const QLocale locale(QString::fromStdString(userLocale()));
    if (picker.displayFormat() == format && picker.locale() == locale) // again, it would disturb whoever is typing
        return;
    picker.setLocale(locale);
    picker.setDisplayFormat(format);
}

void CalendarIntervalCellView::titleDayMenu()
{
    constexpr qlonglong sunday = 1;
    constexpr qlonglong monday = 2;
    auto& menu = *ui_->calendarIntervalDayPopupButton;
    menu.addItem(localizedString("everyDayTitle"), CalendarIntervalRule::everyDay);
    menu.addItem(localizedString("weekdaysTitle"), CalendarIntervalRule::mondayToFriday);
    qlonglong day = monday;
    for (const auto& title :
         {localizedString("mondayTitle"), localizedString("tuesdayTitle"), localizedString("wednesdayTitle"),
          localizedString("thursdayTitle"), localizedString("fridayTitle"), localizedString("saturdayTitle")})
        menu.addItem(title, day++);
    menu.addItem(localizedString("sundayTitle"), sunday);
}

void CalendarIntervalCellView::fill(int row, qlonglong day, QTime time)
{
    row_ = row;
    applyTitles();
    auto& menu = *ui_->calendarIntervalDayPopupButton;
    menu.setCurrentIndex(menu.findData(day));
    auto& picker = *ui_->calendarIntervalDatePicker;
    if (picker.time() != time) { // the same again would disturb whoever is typing
        const QSignalBlocker silence(picker);
        picker.setTime(time);
    }
    describe();
}

qlonglong CalendarIntervalCellView::day() const
{
    return ui_->calendarIntervalDayPopupButton->currentData().toLongLong();
}

QTime CalendarIntervalCellView::time() const
{
    return ui_->calendarIntervalDatePicker->time();
}

QAbstractButton* CalendarIntervalCellView::deleteButton() const
{
    return ui_->deleteButton;
}

void CalendarIntervalCellView::takeKeyboard()
{
    ui_->calendarIntervalDayPopupButton->setFocus(Qt::TabFocusReason);
}

QWidget* CalendarIntervalCellView::setTabOrderAfter(QWidget* widget)
{
    setTabOrder(widget, ui_->calendarIntervalDayPopupButton);
    setTabOrder(ui_->calendarIntervalDayPopupButton, ui_->calendarIntervalDatePicker);
    setTabOrder(ui_->calendarIntervalDatePicker, ui_->deleteButton);
    return ui_->deleteButton;
}

/// Who hears only one control of the row hears the whole sentence with it.
void CalendarIntervalCellView::describe()
{
    const QString sentence =
        u"%1 %2 %3 %4"_s.arg(ui_->backupTitle->text(), ui_->calendarIntervalDayPopupButton->currentText(),
                             ui_->atTimeTitle->text(), ui_->calendarIntervalDatePicker->text());
    setAccessibleName(sentence);
    for (QWidget* control :
         {static_cast<QWidget*>(ui_->calendarIntervalDayPopupButton),
          static_cast<QWidget*>(ui_->calendarIntervalDatePicker), static_cast<QWidget*>(ui_->deleteButton)})
        control->setAccessibleDescription(sentence);
}

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
    // Some focus is needed for the rows to stand behind the table in the order of the Tab key.
    setFocusPolicy(Qt::ClickFocus);
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
