#include "SettingsKeys.h"
#include "StatusMenuController.h"

namespace quillon {

shown::Snapshot StatusMenuController::snapshot() const
{
    const UserDefaults& defaults = services_.defaults;
    const DataManager& model = services_.dataManager;
    return {
        .now = services_.runLoop.now(),
        .run = follower_.run(),
        .isScheduleEnabled = model.isScheduleEnabled(),
        .nextScheduledBackupDate = model.nextScheduledBackupDate(),
        .retryBackupDate = model.retryBackupDate(),
        .pauseUntil = defaults.date(settingskeys::pauseUntilDate),
        .lastBackupDate = defaults.date(settingskeys::lastBackupDate),
        .lastBackupBytes = defaults.integer(settingskeys::lastBackupBytesCopied),
        .lastBackupDisk = defaults.string(settingskeys::lastBackupDiskIdentifier),
        .backupDisks = disks_.backupDisks(),
        .iconOnly = defaults.integer(settingskeys::showMenuBarIconOnly) != 0,
        .detailedTime = defaults.integer(settingskeys::showDetailedTime) == 1,
        .updateIsAvailable = latestAppVersion_.has_value(),
        .commandIsUnderWay = commands_.isUnderWay(),
        .skipThisBackupTitleLocaleKey = skipThisBackupTitleLocaleKey_,
    };
}

void StatusMenuController::showStep(const BackupRun::Step& step)
{
    if (step.end)
        endRun(*step.end);
    const auto now = snapshot();
    if (const auto title = shown::itemTitle(now))
        updateStatusBarTitle(title->title, title->text);
    if (step.began)
        beginRun();
    if (const auto icon = shown::idleIcon(now))
        setMenuBarIconState(*icon);
    if (now.run.isActive())
        face_.drawIcon(); // whose progress may have changed
    showMenu(shown::menu(snapshot()));
    Q_EMIT statusBarUpdated();
}

void StatusMenuController::beginRun()
{
    services_.dataManager.setRetryBackupDate(std::nullopt);
    disks_.request();
    setMenuBarIconState(MenuBarIconState::Running);
}

void StatusMenuController::endRun(const BackupRun::End& end)
{
    setMenuBarIconState(MenuBarIconState::Completed);
    if (end.completed)
        recordCompletedRun(end);
    if (end.failed()) {
        setMenuBarIconState(MenuBarIconState::Failed);
        schedule_.setRetryInFiveMinutesIfEnabled(settingskeys::enableRetryAtFailure);
    }
    updateStatusBarTitle({}, {});
}

void StatusMenuController::recordCompletedRun(const BackupRun::End& end)
{
    const QString identifier = end.disk.value_or(QString());
    UserDefaults& defaults = services_.defaults;
    defaults.setDate(settingskeys::lastBackupDate, end.completed);
    defaults.setObject(settingskeys::lastBackupBytesCopied, static_cast<qlonglong>(end.bytes));
    defaults.setObject(settingskeys::lastBackupDiskIdentifier, end.disk ? QVariant(identifier) : QVariant());
    services_.dataManager.recordLatestBackup(identifier, nameForBackupDiskWithIdentifier(identifier), end.bytes,
                                             *end.completed);
}

void StatusMenuController::showMenu(const shown::Menu& menu)
{
    StatusMenu::setTitle(statusMenu_.phaseMenuItem, menu.phase);
    showBackupDisk(menu.backupDisk);
    StatusMenu::setTitle(statusMenu_.remainingTimeMenuItem, menu.remainingTime);
    statusMenu_.pauseScheduleMenuItem->setEnabled(menu.pauseIsEnabled);
    showBackupNow(menu);
    if (menu.pausedUntil)
        StatusMenu::setTitle(statusMenu_.pauseScheduleMenuItem, *menu.pausedUntil);
    statusMenu_.setShown(statusMenu_.updateAvailableMenuItem, menu.updateIsShown);
}

void StatusMenuController::showBackupNow(const shown::Menu& menu)
{
    if (menu.offersToStop)
        disks_.withdrawSubmenus();
    statusMenu_.setShown(statusMenu_.skipRetryAttemptMenuItem, menu.skipRetryIsShown);
    StatusMenu::setTitle(statusMenu_.backupNowMenuItem, menu.backupNow);
    disks_.setChoiceEnabled(menu.disksAreEnabled);
    if (shouldEnableMenuButons_)
        statusMenu_.backupNowMenuItem->setEnabled(menu.backupNowIsEnabled);
}

void StatusMenuController::updateBackupDiskMenuItem()
{
    showBackupDisk(shown::menu(snapshot()).backupDisk);
}

void StatusMenuController::showBackupDisk(const std::optional<QString>& title)
{
    statusMenu_.setShown(statusMenu_.backupDiskMenuItem, title.has_value());
    if (title)
        StatusMenu::setTitle(statusMenu_.backupDiskMenuItem, *title);
}

QString StatusMenuController::nameForBackupDiskWithIdentifier(const QString& identifier) const
{
    return words::diskNameFor(identifier, disks_.backupDisks());
}

} // namespace quillon
