#include "StatusMenuController.h"

#include "LocalizedString.h"
#include "Notifications.h"
#include "PollIntervals.h"
#include "ProcessInfo.h"
#include "SettingsKeys.h"
#include "SystemVersion.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Points of the system font.
double buttonFontSize(const OperatingSystemVersion& system)
{
    return system.major < 11 ? 12.0 : 11.0;
}

} // namespace

StatusMenuController::StatusMenuController(const Services& services)
    : runLoop_(services.runLoop)
    , defaults_(services.defaults)
    , notifications_(services.notifications)
    , workspace_(services.workspace)
    , alerts_(services.alerts)
    , tmutilQueue_(services.tmutilQueue)
    , launcher_(services.launcher)
    , sharedDataManager_(services.dataManager)
    , loginItem_(services.loginItem)
    , statusItem_(services.statusItem)
    , tmutil_(services.tmutilQueue, services.launcher, services.runLoop, services.workspace, services.alerts)
    , tmPhase_(u"NotRunning"_s)
    , clockWatch_(services.runLoop)
{
}

StatusMenuController::~StatusMenuController()
{
    // An open settings panel posts once more as it goes.
    notifications_.disconnect(this);
}

void StatusMenuController::awakeFromNib()
{
    const QVariant lastIcon = defaults_.object(settingskeys::lastMenuBarIconState);
    setMenuBarIconState(lastIcon.isValid() ? MenuBarIconState{defaults_.integer(settingskeys::lastMenuBarIconState)}
                                           : MenuBarIconState::Idle);
    statusItem_.setFontSize(buttonFontSize(operatingSystemVersion()));
    statusItem_.setMenu(&statusMenu_);
    StatusMenu::setTitle(statusMenu_.quitMenuItem, localizedString("quitApplicationTitle").arg(u"Quillon"_s));
    connectCommands();
    updateStatusBar();
    chooseLocaleKeys();
    titleMenuItems();
    restorePause();
    startTimerWithInterval(pollintervals::idle);
    firePollTimer();
    requestBackupDisks(); // the first menu is to be whole as it opens
    createPopovers();
    registerObservers();
}

void StatusMenuController::chooseLocaleKeys()
{
    const bool ventura = systemIsAtLeast(u"13.0");
    enterTimeMachineTitleLocaleKey_ = ventura ? "enterTimeMachineTitleVentura" : "enterTimeMachineTitle";
    skipThisBackupTitleLocaleKey_ = ventura ? "skipThisBackupTitleVentura" : "skipThisBackupTitle";
}

void StatusMenuController::titleMenuItems()
{
    const auto title = [](QAction* item, const char* key, const QString& pattern = u"%1"_s) {
        StatusMenu::setTitle(item, pattern.arg(localizedString(key)));
    };
    const QString opens = u"%1..."_s;
    title(statusMenu_.skipRetryAttemptMenuItem, "skipRetryAttemptTitle");
    title(statusMenu_.enterTimeMachineMenuItem, enterTimeMachineTitleLocaleKey_);
    title(statusMenu_.updateAvailableMenuItem, "updateAvailableMenuTitle", u"🟢 %1..."_s);
    title(statusMenu_.preferencesMenuItem, "preferencesMenuTitle", opens);
    title(statusMenu_.openSystemPreferencesMenuItem, sharedDataManager_.openSystemPreferencesTitleLocaleKey(), opens);
    title(statusMenu_.aboutMenuItem, "aboutMenuTitle", opens);
    title(statusMenu_.pauseScheduleMenuItem, "pauseScheduleForTitle");
    title(statusMenu_.resumeScheduleMenuItem, "resumeScheduleTitle");
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

void StatusMenuController::createPopovers()
{
    // Their contents follow when they are first shown: most days nobody looks at them.
    for (auto* popover : {&aboutPopover_, &preferencesPopover_}) {
        *popover = std::make_unique<Popover>();
        (*popover)->setBehavior(PopoverBehavior::Transient);
        (*popover)->setAnimates(true);
    }
    // Their frames show no title; screen readers and lists of windows do.
    aboutPopover_->setWindowTitle(localizedString("aboutMenuTitle"));
    preferencesPopover_->setWindowTitle(localizedString("preferencesMenuTitle"));
}

void StatusMenuController::registerObservers()
{
    notifications_.addObserver(notifications::scheduledBackupShouldStart, this,
                               [this](const QVariantMap&) { startScheduledBackup(); });
    notifications_.addObserver(notifications::scheduledBackupFoundLate, this,
                               [this](const QVariantMap&) { handleWake(Wake::ClockJump); });
    notifications_.addObserver(notifications::shouldUpdateStatusBar, this, [this](const QVariantMap&) {
        updateStatusBar();
        runLoop_.enqueue([this] { statusItem_.setImage(getMenuBarIcon()); });
    });
    notifications_.addObserver(notifications::appUpdateAvailable, this, [this](const QVariantMap& userInfo) {
        const QString version = userInfo.value(u"latestAppVersion"_s).toString();
        latestAppVersion_ = version.isEmpty() ? std::nullopt : std::optional(version);
        updateStatusBar();
    });
    connect(&workspace_, &Workspace::willSleep, this, &StatusMenuController::prepareForSleep, Qt::DirectConnection);
    connect(&workspace_, &Workspace::didWake, this, [this] { handleWake(Wake::FromSleep); });
}

bool StatusMenuController::switchIsOn(const QString& key) const
{
    return defaults_.integer(key) == 1;
}

bool StatusMenuController::iconOnly() const
{
    return defaults_.integer(settingskeys::showMenuBarIconOnly) != 0;
}

} // namespace quillon
