#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

#include <utility>

namespace quillon {

void StatusMenuController::backupNowClicked()
{
    // A second click while the first one is under way would take effect twice.
    if (std::exchange(commandIsUnderWay_, true))
        return;
    askForState([this](TMState state) {
        tmState_ = state;
        updateStatusBar(); // a run that has ended since the last poll is to be recorded before the next one begins
        if (state == TMState::Running || state == TMState::Stopping)
            requestStop();
        else
            requestStart({}, switchIsOn(settingskeys::rotateBackupDisks));
    });
}

void StatusMenuController::backupNowSubMenuItemClicked(const QString& identifier)
{
    if (!std::exchange(commandIsUnderWay_, true))
        requestStart(identifier, false);
}

void StatusMenuController::requestStop()
{
    tmutil_.stopBackupWithCompletionHandler([this](bool, bool success) {
        if (success) {
            stopBackupConfirmed_ = true;
            firePollTimer();
        }
        commandSettled();
    });
}

void StatusMenuController::requestStart(const QString& identifier, bool rotateBackupDisks)
{
    tmutil_.startBackupOnDiskWithIdentifier(
        identifier, rotateBackupDisks, [this](std::int32_t exitStatus, bool success) {
            if (success)
                startAccepted();
            else
                runLoop_.enqueue([this, exitStatus] { tellOfFailedStart(exitStatus); });
            commandSettled();
        });
}

void StatusMenuController::tellOfFailedStart(std::int32_t exitStatus)
{
    AlertRequest warning;
    warning.messageText = localizedString("AlertTitleWarning");
    warning.informativeText = localizedString("failedToStartBackupMessage").arg(exitStatus);
    warning.buttons = {localizedString("AlertButtonClose")};
    alerts_.present(warning, {});
}

} // namespace quillon
