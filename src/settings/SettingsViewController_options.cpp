#include "DataManager.h"
#include "LoginItem.h"
#include "SettingsKeys.h"
#include "SettingsViewController.h"
#include "SystemVersion.h"
#include "UserDefaults.h"
#include "ui_SettingsView.h"

namespace quillon {

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
