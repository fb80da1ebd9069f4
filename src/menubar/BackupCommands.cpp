#include "BackupCommands.h"

#include "LocalizedString.h"
#include "StoredAndSentNames.h"
#include "SystemAdvice.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

BackupCommands::BackupCommands(const Services& services)
    : services_(services)
{
}

bool BackupCommands::rotateBackupDisks() const
{
    return services_.defaults.integer(settingskeys::rotateBackupDisks) == 1;
}

BackupCommands::ScheduleSwitches BackupCommands::switchesNow() const
{
    const auto end = services_.defaults.date(settingskeys::pauseUntilDate);
    return {services_.dataManager.isScheduleEnabled(), end && *end > services_.runLoop.now() ? end : std::nullopt};
}

void BackupCommands::begin(CommandResultHandler told)
{
    isUnderWay_ = true;
    told_ = std::move(told);
    Q_EMIT began();
}

void BackupCommands::settle(const CommandResult& result)
{
    isUnderWay_ = false;
    services_.follower.updateStatusBar();
    if (const auto told = std::exchange(told_, {}))
        told(result);
    if (const auto waiting = std::exchange(waitingStart_, std::nullopt))
        askForScheduledStart(*waiting);
}

void BackupCommands::backupNowClicked(CommandResultHandler told)
{
    if (isUnderWay_)
        return;
    const bool offeredToStop = services_.follower.run().isActive();
    begin(std::move(told));
    services_.follower.askForStatus(
        [this, offeredToStop](const TMStatus& status) { answerBackupNow(status, offeredToStop); });
}

void BackupCommands::backupNowRequested(CommandResultHandler told)
{
    const BackupRun& run = services_.follower.run();
    if (isUnderWay_ || run.isActive())
        return;
    begin(std::move(told));
    services_.follower.askForStatus([this, &run](const TMStatus& status) {
        if (status.state != TMState::Running && status.state != TMState::Stopping && !run.isActive()) {
            answerBackupNow(status, false);
            return;
        }
        services_.follower.take(status, BackupRun::Asked::ByCommand);
        settle();
    });
}

void BackupCommands::answerBackupNow(const TMStatus& status, bool offeredToStop)
{
    if (offeredToStop && status.state == TMState::Unknown) { // the next poll may know more
        settle({CommandResult::Outcome::Unreadable});
        return;
    }
    const bool mayBeAboutToRun = services_.follower.run().tmState() == TMState::Starting;
    // A run that has ended since the last poll is to be recorded before the next one begins.
    services_.follower.take(status, BackupRun::Asked::ByCommand);
    if (status.state == TMState::Running || status.state == TMState::Stopping || mayBeAboutToRun)
        requestStop();
    else if (offeredToStop)
        settle(); // who wanted to end a run does not want another one
    else
        requestStart({}, rotateBackupDisks());
}

void BackupCommands::backupNowSubMenuItemClicked(const QString& identifier, CommandResultHandler told)
{
    if (isUnderWay_)
        return;
    begin(std::move(told));
    requestStart(identifier, false);
}

void BackupCommands::requestStop()
{
    services_.tmutil.stopBackupWithCompletionHandler([this](bool, bool success) {
        if (success)
            services_.follower.stopAccepted();
        settle({success ? CommandResult::Outcome::Accepted : CommandResult::Outcome::Refused});
    });
}

void BackupCommands::requestStart(const QString& identifier, bool rotateBackupDisks)
{
    services_.tmutil.startBackupOnDiskWithIdentifier(
        identifier, rotateBackupDisks, [this](std::int32_t exitStatus, bool success) {
            if (success) {
                waitingStart_.reset(); // the backup that it was to start begins now
                services_.follower.startAccepted();
            } else if (!told_) {
                services_.runLoop.enqueue([this, exitStatus] { tellOfFailedStart(exitStatus); });
            }
            settle({success ? CommandResult::Outcome::Accepted : CommandResult::Outcome::Refused, exitStatus});
        });
}

void BackupCommands::tellOfFailedStart(std::int32_t exitStatus)
{
    AlertRequest warning;
    warning.messageText = localizedString("AlertTitleWarning");
    warning.informativeText = localizedString("failedToStartBackupMessage").arg(exitStatus);
    if (const QString reason = startFailureReason(exitStatus); !reason.isEmpty())
        warning.informativeText += u"\n\n"_s + reason;
    warning.buttons = {localizedString("AlertButtonClose")};
    services_.alerts.present(warning, {});
}

void BackupCommands::startScheduledBackup()
{
    askForScheduledStart(switchesNow());
}

void BackupCommands::askForScheduledStart(const ScheduleSwitches& switches)
{
    if (isUnderWay_) {
        waitingStart_ = switches; // the user is starting or stopping a backup at this moment
        return;
    }
    begin();
    services_.follower.askForStatus(
        [this, switches](const TMStatus& status) { answerScheduledStart(status, switches); });
}

void BackupCommands::answerScheduledStart(const TMStatus& status, const ScheduleSwitches& switches)
{
    if (status.state == TMState::Unknown) { // which is no reason to do anything, and tells nothing of a run
        settle();
        return;
    }
    if (status.state != TMState::NotRunning || switches != switchesNow()) {
        services_.follower.take(status, BackupRun::Asked::ByPoll);
        settle();
        return;
    }
    // A run that has ended since the last poll is to be recorded before the next one begins.
    services_.follower.take(status, BackupRun::Asked::ByCommand);
    services_.tmutil.startBackupOnDiskWithIdentifier({}, rotateBackupDisks(), [this](std::int32_t, bool success) {
        if (success) {
            services_.follower.startAccepted();
            Q_EMIT scheduledBackupStarts();
        }
        settle();
    });
}

} // namespace quillon
