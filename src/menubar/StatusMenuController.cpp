#include "StatusMenuController.h"

#include "ApplicationIdentity.h"
#include "DataHelper.h"
#include "LocalizedString.h"
#include "StoredAndSent.h"
#include "TimeMachineSettings.h"

namespace quillon {

using namespace Qt::StringLiterals;

StatusMenuController::StatusMenuController(const Services& services)
    : services_(services)
    , statusMenu_(services.runLoop)
    , follower_(services.runLoop, services.tmutil)
    , commands_({services.runLoop, services.defaults, services.dataManager, services.alerts, services.tmutil, follower_,
                 services.hooks})
    , disks_({services.runLoop, services.defaults, services.dataManager, services.tmutil, follower_.run()}, statusMenu_)
    , pause_({services.runLoop, services.defaults, services.dataManager}, statusMenu_)
    , panels_({services.runLoop, services.defaults, services.notifications, services.dataManager, services.loginItem,
               services.tmutil, services.workspace, services.alerts},
              services.ledger, services.statusItem, statusMenu_)
    , face_(services.runLoop, services.defaults, services.statusItem, follower_.run())
    , schedule_({services.runLoop, services.defaults, services.dataManager, pause_, face_})
    , machine_({services.runLoop, services.defaults, services.dataManager, follower_, commands_, schedule_,
                services.ledger, services.powerSupply, services.awakeLock},
               disks_, services.mountWatch)
    , runLedger_({services.runLoop, services.defaults, services.dataManager, follower_, disks_, services.ledger,
                  services.hooks})
    , concerns_({services.runLoop, services.defaults, services.dataManager, follower_, commands_, services.ledger,
                 services.userNotifications})
{
    connectParts();
}

StatusMenuController::~StatusMenuController()
{
    // An open settings panel posts once more as it goes.
    services_.notifications.disconnect(this);
}

void StatusMenuController::connectParts()
{
    connect(&follower_, &RunFollower::ticked, &schedule_, &ScheduleWatch::checkClock);
    connect(&follower_, &RunFollower::stepped, this, &StatusMenuController::showStep);
    connect(&commands_, &BackupCommands::began, this, [this] { showBackupNow(shown::menu(snapshot())); });
    connect(&commands_, &BackupCommands::scheduledBackupStarts, this, [this] {
        services_.runLoop.enqueue(
            [this] { disks_.request(); }); // behind the first poll: a slow list hides no short run
    });
    connect(&disks_, &DisksInMenu::listed, this, &StatusMenuController::updateBackupDiskMenuItem);
    connect(&disks_, &DisksInMenu::systemChoiceClicked, this, [this] { backupNowClicked(); });
    connect(&disks_, &DisksInMenu::diskClicked, this,
            [this](const QString& identifier) { backupNowSubMenuItemClicked(identifier); });
    connect(&disks_, &DisksInMenu::helpButtonPressed, this, &StatusMenuController::allBackupInfoHelpButtonPressed);
    connect(&pause_, &SchedulePause::changed, this, &StatusMenuController::updateStatusBar);
    connect(&schedule_, &ScheduleWatch::looked, this, &StatusMenuController::updateStatusBar);
    connect(&face_, &StatusItemFace::menuBarIconStateChanged, this, &StatusMenuController::menuBarIconStateChanged);
    // Last, so that what each of them leads to has been done.
    connect(&commands_, &BackupCommands::startAnswered, &runLedger_, &RunLedger::noteStart);
    connect(&schedule_, &ScheduleWatch::startPassed, &runLedger_, &RunLedger::notePassed);
    connect(&pause_, &SchedulePause::changed, &runLedger_, &RunLedger::lookAtPause);
    connect(&follower_, &RunFollower::ticked, &runLedger_, &RunLedger::lookAtPause);
    connect(&follower_, &RunFollower::stepped, &runLedger_, &RunLedger::noteStep);
    connect(&follower_, &RunFollower::stepped, &concerns_, &ConcernWatch::noteStep);
    connect(&commands_, &BackupCommands::startAnswered, &machine_, &MachineWatch::noteStart);
    connect(&follower_, &RunFollower::stepped, &machine_, &MachineWatch::noteStep);
    connect(&machine_, &MachineWatch::startAllowed, &commands_, &BackupCommands::startScheduledBackup);
    connect(&machine_, &MachineWatch::startHeldBack, &runLedger_, &RunLedger::noteStart);
    connect(&concerns_, &ConcernWatch::backupNowChosen, this, [this] { backupNowRequested(); });
    connect(&concerns_, &ConcernWatch::timeMachineSettingsChosen, this, &StatusMenuController::openSystemPreferences);
    connect(&concerns_, &ConcernWatch::settingsChosen, this, &StatusMenuController::preferencesClicked);
}

void StatusMenuController::awakeFromNib()
{
    face_.restore();
    services_.statusItem.setMenu(&statusMenu_);
    connectCommands();
    updateStatusBar();
    titleMenuItems();
    pause_.restore();
    follower_.start();
    follower_.fire();
    machine_.start();
    disks_.request(); // the first menu is to be whole as it opens
    registerObservers();
}

void StatusMenuController::titleMenuItems()
{
    const bool ventura = systemIsAtLeast(u"13.0");
    enterTimeMachineTitleLocaleKey_ = ventura ? "enterTimeMachineTitleVentura" : "enterTimeMachineTitle";
    skipThisBackupTitleLocaleKey_ = ventura ? "skipThisBackupTitleVentura" : "skipThisBackupTitle";
    const auto title = [](QAction* item, const char* key, const QString& pattern = u"%1"_s) {
        StatusMenu::setTitle(item, pattern.arg(localizedString(key)));
    };
    const QString opens = u"%1..."_s;
    StatusMenu::setTitle(statusMenu_.quitMenuItem, localizedString("quitApplicationTitle").arg(identity::name));
    title(statusMenu_.skipRetryAttemptMenuItem, "skipRetryAttemptTitle");
    title(statusMenu_.enterTimeMachineMenuItem, enterTimeMachineTitleLocaleKey_);
    title(statusMenu_.updateAvailableMenuItem, "updateAvailableMenuTitle", u"🟢 %1..."_s);
    title(statusMenu_.preferencesMenuItem, "preferencesMenuTitle", opens);
    title(statusMenu_.openSystemPreferencesMenuItem, services_.dataManager.openSystemPreferencesTitleLocaleKey(),
          opens);
    title(statusMenu_.aboutMenuItem, "aboutMenuTitle", opens);
    title(statusMenu_.pauseScheduleMenuItem, "pauseScheduleForTitle");
    title(statusMenu_.resumeScheduleMenuItem, "resumeScheduleTitle");
}

void StatusMenuController::registerObservers()
{
    NotificationCenter& notifications = services_.notifications;
    notifications.addObserver(notifications::scheduledBackupShouldStart, this,
                              [this](const QVariantMap&) { machine_.takeStart(); });
    notifications.addObserver(notifications::scheduledBackupFoundLate, this, [this](const QVariantMap&) {
        schedule_.lookAtSchedule(startdecision::Occasion::ClockChanged);
    });
    notifications.addObserver(notifications::shouldUpdateStatusBar, this, [this](const QVariantMap&) {
        updateStatusBar();
        services_.runLoop.enqueue([this] { face_.drawIcon(); });
    });
    notifications.addObserver(notifications::appUpdateAvailable, this, [this](const QVariantMap& userInfo) {
        const QString version = userInfo.value(u"latestAppVersion"_s).toString();
        latestAppVersion_ = version.isEmpty() ? std::nullopt : std::optional(version);
        updateStatusBar();
    });
    connect(&services_.workspace, &Workspace::willSleep, &schedule_, &ScheduleWatch::systemWillSleep,
            Qt::DirectConnection);
    connect(&services_.workspace, &Workspace::didWake, this,
            [this] { schedule_.lookAtSchedule(startdecision::Occasion::Woke); });
}

void StatusMenuController::enableMenuButtons(bool enable)
{
    shouldEnableMenuButons_ = enable;
    for (QAction* item : {statusMenu_.skipRetryAttemptMenuItem, statusMenu_.pauseScheduleMenuItem,
                          statusMenu_.backupNowMenuItem, statusMenu_.enterTimeMachineMenuItem,
                          statusMenu_.preferencesMenuItem, statusMenu_.openSystemPreferencesMenuItem})
        item->setEnabled(enable);
    if (enable)
        updateStatusBar();
}

void StatusMenuController::connectCommands()
{
    connect(&statusMenu_, &QMenu::aboutToShow, this, &StatusMenuController::menuWillOpen);
    const auto onClick = [this](QAction* item, auto command) {
        connect(item, &QAction::triggered, this, [this, item, command] {
            if (!statusMenu_.hasJustChanged(item))
                QMetaObject::invokeMethod(this, command);
        });
    };
    onClick(statusMenu_.backupNowMenuItem, [this] {
        if (!statusMenu_.backupNowMenuItem->menu()) // with a submenu the item only opens it
            backupNowClicked();
    });
    onClick(statusMenu_.pauseScheduleMenuItem, [this] {
        // It only opens its submenu; a desktop that draws the menu may toggle the mark all the same.
        StatusMenu::setState(statusMenu_.pauseScheduleMenuItem, statusMenu_.resumeScheduleMenuItem->isVisible());
    });
    onClick(statusMenu_.resumeScheduleMenuItem, &StatusMenuController::resumeScheduleClicked);
    onClick(statusMenu_.skipRetryAttemptMenuItem, &StatusMenuController::skipRetryAttemptClicked);
    onClick(statusMenu_.enterTimeMachineMenuItem, &StatusMenuController::enterTimeMachineClicked);
    onClick(statusMenu_.updateAvailableMenuItem, &StatusMenuController::updateAvailableClicked);
    onClick(statusMenu_.openSystemPreferencesMenuItem, &StatusMenuController::openSystemPreferences);
    onClick(statusMenu_.preferencesMenuItem, &StatusMenuController::preferencesClicked);
    onClick(statusMenu_.aboutMenuItem, &StatusMenuController::aboutClicked);
    onClick(statusMenu_.quitMenuItem, &StatusMenuController::quitClicked);
    const auto durations = statusMenu_.pauseDurationItems();
    for (QAction* item : durations)
        onClick(item, [this, item] { pauseForClicked(item->data().toLongLong()); });
}

void StatusMenuController::skipRetryAttemptClicked()
{
    services_.dataManager.setRetryBackupDate(std::nullopt);
    updateStatusBar();
}

bool StatusMenuController::skipNextStart()
{
    const auto due = services_.dataManager.nextScheduledBackupDate();
    if (!services_.dataManager.changeNextStart({}))
        return false;
    using enum LedgerEntry::Outcome;
    runLedger_.noteStart({.date = *due, .outcome = Skipped, .reason = LedgerEntry::Reason::Asked});
    updateStatusBar();
    return true;
}

bool StatusMenuController::postponeNextStart(std::chrono::seconds by)
{
    const auto due = services_.dataManager.nextScheduledBackupDate();
    if (!due || !services_.dataManager.changeNextStart(*due + by))
        return false;
    updateStatusBar();
    return true;
}

void StatusMenuController::enterTimeMachineClicked()
{
    services_.workspace.openApplication(TimeMachineSettings::browser(), {});
}

void StatusMenuController::openSystemPreferences()
{
    services_.tmutil.openTimeMachineSettings(identity::name);
}

void StatusMenuController::updateAvailableClicked()
{
    AlertRequest update;
    update.messageText = localizedString("appUpdateAvailableAlertTitle").arg(latestAppVersion_.value_or(QString()));
    update.informativeText = localizedString("appUpdateAvailableAlertMessage").arg(bundleShortVersion());
    update.buttons = {localizedString("AlertButtonGetUpdate"), localizedString("AlertButtonCancel")};
    services_.alerts.present(update, [this](int response) {
        if (response != alertFirstButtonReturn)
            return;
        // The program makes way for the one that is about to replace it.
        services_.workspace.openURL(makersite::page(u"/quillon/download/"_s), [this](bool opened) {
            if (opened)
                services_.runLoop.enqueue([this] { quitClicked(); });
        });
    });
}

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
        .waitsForPower = machine_.isHoldingBack(),
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
