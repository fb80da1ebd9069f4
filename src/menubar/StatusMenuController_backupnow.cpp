#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "StartFailure.h"
#include "StatusMenuController.h"

namespace quillon {

using namespace Qt::StringLiterals;

void StatusMenuController::backupNowClicked()
{
    // A second click while the first one is under way would take effect twice.
    if (commandIsUnderWay_)
        return;
    const bool offeredToStop = isActive();
    commandBegins();
    askForStatus([this, offeredToStop](const TMStatus& status) { answerBackupNow(status, offeredToStop); });
}

void StatusMenuController::backupNowRequested()
{
    if (commandIsUnderWay_ || isActive())
        return;
    commandBegins();
    askForStatus([this](const TMStatus& status) {
        if (status.state != TMState::Running && status.state != TMState::Stopping && !isActive()) {
            answerBackupNow(status, false);
            return;
        }
        takeOverStatus(status);
        commandSettled();
    });
}

void StatusMenuController::answerBackupNow(const TMStatus& status, bool offeredToStop)
{
    if (offeredToStop && status.state == TMState::Unknown) { // the next poll may know more
        commandSettled();
        return;
    }
    const bool mayBeAboutToRun = tmState_ == TMState::Starting;
    takeOverStatus(status); // a run that has ended since the last poll is to be recorded before the next one begins
    if (status.state == TMState::Running || status.state == TMState::Stopping || mayBeAboutToRun)
        requestStop();
    else if (offeredToStop)
        commandSettled(); // who wanted to end a run does not want another one
    else
        requestStart({}, switchIsOn(settingskeys::rotateBackupDisks));
}

void StatusMenuController::backupNowSubMenuItemClicked(const QString& identifier)
{
    if (commandIsUnderWay_)
        return;
    commandBegins();
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
            if (success) {
                waitingStart_.reset(); // the backup that it was to start begins now
                startAccepted();
            } else {
                runLoop_.enqueue([this, exitStatus] { tellOfFailedStart(exitStatus); });
            }
            commandSettled();
        });
}

void StatusMenuController::tellOfFailedStart(std::int32_t exitStatus)
{
    AlertRequest warning;
    warning.messageText = localizedString("AlertTitleWarning");
    warning.informativeText = localizedString("failedToStartBackupMessage").arg(exitStatus);
    if (const QString reason = startFailureReason(exitStatus); !reason.isEmpty())
        warning.informativeText += u"\n\n"_s + reason;
    warning.buttons = {localizedString("AlertButtonClose")};
    alerts_.present(warning, {});
}

} // namespace quillon
