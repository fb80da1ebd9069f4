#include "CalendarIntervalCellView.h"
#include "DataHelper.h"
#include "DataManager.h"
#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "SettingsViewController.h"
#include "WheelGuard.h"
#include "ui_SettingsView.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int secondsOfMinute = 60;
constexpr int secondsOfHour = 60 * secondsOfMinute;

} // namespace

void SettingsViewController::connectScheduleControls()
{
    connect(ui_->enableScheduleCheckmark, &QCheckBox::clicked, this,
            &SettingsViewController::enableScheduleCheckmarkChanged);
    connect(ui_->schedulePopup, &QComboBox::activated, this, &SettingsViewController::schedulePopupChanged);
    connect(ui_->addCalendarIntervalButton, &QPushButton::clicked, this,
            &SettingsViewController::addCalendarIntervalButtonPressed);
    connect(ui_->calendarIntervalTable, &CalendarIntervalTable::rowAdded, this, &SettingsViewController::connectRow);

    new WheelGuard(ui_->schedulePopup);
    new WheelGuard(ui_->scheduleIntervalValueStepper);
    connect(ui_->scheduleIntervalValueStepper, &QSpinBox::valueChanged, this,
            &SettingsViewController::scheduleIntervalValueDidChange);
    connect(ui_->scheduleIntervalValueTextField, &QLineEdit::textEdited, this, [this](const QString& text) {
        const int value = text.toInt();
        if (value >= ui_->scheduleIntervalValueStepper->minimum() &&
            value <= ui_->scheduleIntervalValueStepper->maximum())
            scheduleIntervalValueDidChange(value);
    });
    // What was typed last may have been no such number.
    connect(ui_->scheduleIntervalValueTextField, &QLineEdit::editingFinished, this,
            &SettingsViewController::updateScheduleIntervalValueControls);
}

void SettingsViewController::connectRow(CalendarIntervalCellView* view)
{
    connect(view, &CalendarIntervalCellView::dayChanged, this,
            [this, view] { calendarIntervalDayPopupButtonChanged(*view); });
    connect(view, &CalendarIntervalCellView::timeChanged, this,
            [this, view] { calendarIntervalDatePickerChanged(*view); });
    connect(view, &CalendarIntervalCellView::deleteButtonPressed, this, [this, view] { deleteButtonPressed(*view); });
}

void SettingsViewController::showStoredSchedule()
{
    const bool on = sharedDataManager_.isScheduleEnabled();
    ui_->enableScheduleCheckmark->setChecked(on);
    ui_->warningButton->setVisible(on);
    reloadCalendarIntervalTableView();
}

void SettingsViewController::reloadCalendarIntervalTableView()
{
    const auto& rules = sharedDataManager_.calendarIntervalSettings();
    ui_->calendarIntervalTable->setNumberOfRows(static_cast<int>(rules.size()));
    for (int row = 0; row < ui_->calendarIntervalTable->numberOfRows(); ++row)
        ui_->calendarIntervalTable->viewAtRow(row)->fill(
            row, rules[row].day, todayWithIntervalSinceMidnight(static_cast<double>(rules[row].time)));
    refreshNextBackupLabel();
}

QString SettingsViewController::getNextScheduledBackup() const
{
    if (!ui_->enableScheduleCheckmark->isChecked())
        return localizedString("nextBackupDisabled");
    const auto next = sharedDataManager_.nextScheduledBackupDate();
    if (!next)
        return localizedString("nextBackupNotAvailable");
    return DataHelper::dayAndTime(*next, DateFormatterStyle::Full, runLoop_.now());
}

void SettingsViewController::refreshNextBackupLabel()
{
    ui_->nextBackupLabel->setText(getNextScheduledBackup());
}

QTime SettingsViewController::todayWithIntervalSinceMidnight(double seconds)
{
    // The time of day and not an instant: where the clocks change today, noon is 12:00 all the same.
    const auto time = DataManager::timeComponentsFromTimeInterval(seconds);
    return QTime(0, 0).addSecs(time.hour * secondsOfHour + time.minute * secondsOfMinute);
}

int SettingsViewController::secondsSinceMidnightFromDate(QTime time)
{
    return time.hour() * secondsOfHour + time.minute() * secondsOfMinute;
}

void SettingsViewController::enableScheduleCheckmarkChanged(bool on)
{
    storeSwitch(settingskeys::enableSchedule, on);
    sharedDataManager_.setIsScheduleEnabled(on);
    refreshNextBackupLabel();
    ui_->warningButton->setVisible(on);
    postShouldUpdateStatusBar();
}

void SettingsViewController::schedulePopupChanged()
{
    ui_->scheduleTab->setCurrentIndex(ui_->schedulePopup->currentIndex());
}

void SettingsViewController::scheduleIntervalValueDidChange(int value)
{
    scheduleIntervalValue_ = value;
    updateScheduleIntervalValueControls();
}

void SettingsViewController::updateScheduleIntervalValueControls()
{
    const QString text = QString::number(scheduleIntervalValue_);
    if (ui_->scheduleIntervalValueTextField->text() != text) // leaves the cursor of whoever is typing alone
        ui_->scheduleIntervalValueTextField->setText(text);
    ui_->scheduleIntervalValueStepper->setValue(scheduleIntervalValue_);
    ui_->intervalUnit->setText(
        localizedString(scheduleIntervalValue_ == 1 ? "settingsIntervalHour" : "settingsIntervalHours"));
}

void SettingsViewController::addCalendarIntervalButtonPressed()
{
    if (sharedDataManager_.calendarIntervalSettings().size() >= mostRules) {
        showRuleLimit();
        return;
    }
    sharedDataManager_.addNewSchedule();
    reloadCalendarIntervalTableView();
    const int added = ui_->calendarIntervalTable->numberOfRows() - 1;
    ui_->calendarIntervalTable->scrollRowToVisible(added);
    if (!ui_->addCalendarIntervalButton->underMouse()) // whose user goes on with the mouse, and turns its wheel
        ui_->calendarIntervalTable->viewAtRow(added)->takeKeyboard();
}

void SettingsViewController::calendarIntervalDayPopupButtonChanged(const CalendarIntervalCellView& sender)
{
    sharedDataManager_.updateBackupScheduleAtIndex(static_cast<std::size_t>(sender.row()), sender.day(), u"day"_s);
    refreshNextBackupLabel();
}

void SettingsViewController::calendarIntervalDatePickerChanged(const CalendarIntervalCellView& sender)
{
    sharedDataManager_.updateBackupScheduleAtIndex(static_cast<std::size_t>(sender.row()),
                                                   secondsSinceMidnightFromDate(sender.time()), u"time"_s);
    refreshNextBackupLabel();
}

} // namespace quillon
