#include "DataHelper.h"
#include "Format.h"
#include "LocalizedString.h"
#include "PollIntervals.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString circleMarker = u" 🟢"_s;

} // namespace

void StatusMenuController::updateStatusBar()
{
    runLoop_.enqueue([this] { runStateMachineStep(); });
}

bool StatusMenuController::isActive() const
{
    return tmState_ == TMState::Running || tmState_ == TMState::Stopping || tmState_ == TMState::Starting;
}

void StatusMenuController::runStateMachineStep()
{
    if (isActive()) {
        showActiveTitle();
        if (uiState_ != TMState::Running && tmState_ == TMState::Running)
            beginRun();
        statusItem_.setImage(getMenuBarIcon()); // whose progress may have changed
    } else {
        if (uiState_ == TMState::Running)
            endRun();
        else
            closeDeadEnds();
        if (tmState_ == TMState::NotRunning)
            showIdleTitle();
    }
    updateMenuItems();
    previousTmPhase_ = tmPhase_;
    Q_EMIT statusBarUpdated();
}

void StatusMenuController::endRun()
{
    startTimerWithInterval(pollintervals::idle);
    setMenuBarIconState(MenuBarIconState::Completed);
    if (backupCompleteDate_)
        recordCompletedRun();
    else if (!stopBackupConfirmed_)
        markRunFailed();

    uiState_ = tmState_;
    stopBackupConfirmed_ = false;
    activeBackupDiskIdentifier_.reset();
    progress_ = RunProgress();
    setButtonTitle(QString());
    // The completion date stays until the next run is first seen.
}

void StatusMenuController::recordCompletedRun()
{
    const QString identifier = activeBackupDiskIdentifier_.value_or(QString());
    defaults_.setDate(settingskeys::lastBackupDate, backupCompleteDate_);
    defaults_.setObject(settingskeys::lastBackupBytesCopied, static_cast<qlonglong>(progress_.bytesCopied()));
    defaults_.setObject(settingskeys::lastBackupDiskIdentifier,
                        activeBackupDiskIdentifier_ ? QVariant(identifier) : QVariant());
    sharedDataManager_.recordLatestBackup(identifier, nameForBackupDiskWithIdentifier(identifier),
                                          progress_.bytesCopied(), *backupCompleteDate_);
}

void StatusMenuController::markRunFailed()
{
    setMenuBarIconState(MenuBarIconState::Failed);
    setRetryInFiveMinutesIfEnabled(settingskeys::enableRetryAtFailure);
}

void StatusMenuController::closeDeadEnds()
{
    // A stop that was accepted just as the run ended would keep the backup-now item disabled for ever.
    stopBackupConfirmed_ = false;
    // A start whose run was never reported would be looked for every few seconds for ever.
    if (pollInterval_ != pollintervals::idle)
        startTimerWithInterval(pollintervals::idle);
}

void StatusMenuController::beginRun()
{
    startTimerWithInterval(pollintervals::running);
    backupCompleteDate_.reset();
    sharedDataManager_.setRetryBackupDate(std::nullopt);
    requestBackupDisks();
    uiState_ = TMState::Running;
    setMenuBarIconState(MenuBarIconState::Running);
}

void StatusMenuController::showIdleTitle()
{
    QString text = localizedString("notAvailableAbbreviation");
    if (!sharedDataManager_.isScheduleEnabled()) {
        text = localizedString("nextBackupDisabled");
    } else if (const auto next = sharedDataManager_.nextScheduledBackupDate()) {
        text = getTimeStringFromInterval(secondsBetween(runLoop_.now(), *next), abbreviated,
                                         switchIsOn(settingskeys::showDetailedTime), false);
    }
    if (iconOnly()) {
        setButtonTitle(QString());
        if (latestAppVersion_)
            setMenuBarIconState(MenuBarIconState::UpdateAvailable);
        return;
    }
    const QString label =
        localizedString(sharedDataManager_.retryBackupDate() ? "retryBackupShortTitle" : "nextBackupShortTitle");
    updateStatusBarTitle(u"%1:%2"_s.arg(label, updateMarker()), text);
    setMenuBarIconState(MenuBarIconState::Idle);
}

QString StatusMenuController::activeStatusText() const
{
    if (tmState_ == TMState::Starting)
        return localizedString("statusStarting");
    if (tmState_ == TMState::Stopping)
        return localizedString("statusStopping");
    const double remaining = progress_.timeRemaining();
    if (remaining == 0.0) {
        const bool hasBegun = tmPhase_ == "ThinningPostBackup"_L1 || progress_.percentage() >= 0.01;
        return localizedString(hasBegun ? "statusRunning" : "statusStarting");
    }
    if (stopBackupConfirmed_)
        return localizedString("statusStopping");
    if (remaining < 0)
        return u"..."_s;
    return getTimeStringFromInterval(remaining, abbreviated, switchIsOn(settingskeys::showDetailedTime), false);
}

void StatusMenuController::showActiveTitle()
{
    if (iconOnly())
        setButtonTitle(QString());
    else
        updateStatusBarTitle(format("%.1f%%", progress_.percentage() * 100) + updateMarker(), activeStatusText());
}

QString StatusMenuController::updateMarker() const
{
    return latestAppVersion_ ? circleMarker : QString();
}

} // namespace quillon
