#include "CalendarIntervalTable.h"
#include "DataHelper.h"
#include "DataManager.h"
#include "LocalizedString.h"
#include "Services.h"
#include "SettingsViewController.h"
#include "StoredAndSent.h"
#include "UserDefaults.h"
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
    // What was typed last may lie outside of the range.
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
    // Who clicked goes on with the mouse: its wheel would change the control of the new row that has the keyboard.
    if (!ui_->addCalendarIntervalButton->underMouse())
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

namespace {

/// Whether the menu bar shows symbols in colours.
bool systemHasColoredSymbols()
{
    return systemIsAtLeast(u"12.0");
}

} // namespace

void SettingsViewController::connectOptionControls()
{
    const auto onClick = [this](QCheckBox* box, void (SettingsViewController::*action)(bool)) {
        connect(box, &QCheckBox::clicked, this, action);
    };
    onClick(ui_->enableRetryAtMissedScheduleCheckmark,
            &SettingsViewController::enableRetryAtMissedScheduleCheckmarkChanged);
    onClick(ui_->enableRetryAtFailureCheckmark, &SettingsViewController::enableRetryAtFailureCheckmarkChanged);
    onClick(ui_->showRemainingMinutesCheckmark, &SettingsViewController::showRemainingMinutesCheckmarkChanged);
    onClick(ui_->showMenuBarIconOnlyCheckmark, &SettingsViewController::showMenuBarIconOnlyCheckmarkChanged);
    onClick(ui_->enableMenuBarColorsCheckmark, &SettingsViewController::enableMenuBarColorsCheckmarkChanged);
    onClick(ui_->rotateBackupDisksCheckmark, &SettingsViewController::rotateBackupDisksCheckmarkChanged);
    onClick(ui_->enableAppAtSystemStartCheckmark, &SettingsViewController::enableAppAtSystemStartCheckmarkChanged);
    connect(ui_->backupLogButton, &QPushButton::clicked, this, &SettingsViewController::backupLogButtonPressed);
}

void SettingsViewController::showStoredOptions()
{
    using namespace settingskeys;
    ui_->enableRetryAtMissedScheduleCheckmark->setChecked(switchIsOn(enableRetryAtMissedSchedule));
    ui_->enableRetryAtFailureCheckmark->setChecked(switchIsOn(enableRetryAtFailure));
    ui_->showRemainingMinutesCheckmark->setChecked(switchIsOn(showDetailedTime));
    ui_->showMenuBarIconOnlyCheckmark->setChecked(switchIsOn(showMenuBarIconOnly));
    enableDetailedTimeUnlessIconOnly();
    ui_->enableMenuBarColorsCheckmark->setChecked(systemHasColoredSymbols() && switchIsOn(enableMenuBarColors));
    ui_->enableMenuBarColorsCheckmark->setEnabled(systemHasColoredSymbols());
    ui_->rotateBackupDisksCheckmark->setChecked(switchIsOn(rotateBackupDisks));
    ui_->enableAppAtSystemStartCheckmark->setChecked(switchIsOn(launchAtSystemStart));
}

void SettingsViewController::storeSwitch(const QString& key, bool on)
{
    defaults_.setObject(key, on ? 1LL : 0LL);
}

bool SettingsViewController::switchIsOn(const QString& key) const
{
    return defaults_.integer(key) == 1;
}

void SettingsViewController::enableRetryAtMissedScheduleCheckmarkChanged(bool on)
{
    storeRetrySwitch(settingskeys::enableRetryAtMissedSchedule, on);
}

void SettingsViewController::enableRetryAtFailureCheckmarkChanged(bool on)
{
    storeRetrySwitch(settingskeys::enableRetryAtFailure, on);
}

void SettingsViewController::storeRetrySwitch(const QString& key, bool on)
{
    storeSwitch(key, on);
    if (on || !sharedDataManager_.retryBackupDate())
        return;
    sharedDataManager_.setRetryBackupDate(std::nullopt);
    refreshNextBackupLabel();
    postShouldUpdateStatusBar();
}

void SettingsViewController::showRemainingMinutesCheckmarkChanged(bool on)
{
    storeSwitch(settingskeys::showDetailedTime, on);
    postShouldUpdateStatusBar();
}

void SettingsViewController::showMenuBarIconOnlyCheckmarkChanged(bool on)
{
    storeSwitch(settingskeys::showMenuBarIconOnly, on);
    enableDetailedTimeUnlessIconOnly();
    postShouldUpdateStatusBar();
}

void SettingsViewController::enableDetailedTimeUnlessIconOnly()
{
    const bool iconOnly = ui_->showMenuBarIconOnlyCheckmark->isChecked();
    ui_->showRemainingMinutesCheckmark->setEnabled(!iconOnly);
    ui_->showRemainingMinutesDetails->setEnabled(!iconOnly);
}

void SettingsViewController::enableMenuBarColorsCheckmarkChanged(bool on)
{
    storeSwitch(settingskeys::enableMenuBarColors, on);
    postShouldUpdateStatusBar();
}

void SettingsViewController::rotateBackupDisksCheckmarkChanged(bool on)
{
    storeSwitch(settingskeys::rotateBackupDisks, on);
}

void SettingsViewController::enableAppAtSystemStartCheckmarkChanged(bool on)
{
    storeSwitch(settingskeys::launchAtSystemStart, on);
    if (loginItem_.setEnabled(on))
        return;
    // The box shows what holds.
    storeSwitch(settingskeys::launchAtSystemStart, !on);
    ui_->enableAppAtSystemStartCheckmark->setChecked(!on);
    showRefusedLoginItem();
}

} // namespace quillon
