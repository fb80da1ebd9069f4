#include "StatusMenuController.h"

#include "DataHelper.h"
#include "LocalizedString.h"
#include "Notifications.h"
#include "PollIntervals.h"
#include "ProcessInfo.h"
#include "SettingsKeys.h"
#include "TextComparison.h"

#include <QCoreApplication>

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
    , sharedDataManager_(services.dataManager)
    , statusItem_(services.statusItem)
    , tmutil_(services.tmutilQueue, services.launcher, services.runLoop, services.workspace, services.alerts)
    , tmPhase_(u"NotRunning"_s)
    , clockWatch_(services.runLoop)
{
}

StatusMenuController::~StatusMenuController() = default;

void StatusMenuController::awakeFromNib()
{
    const QVariant lastIcon = defaults_.object(settingskeys::lastMenuBarIconState);
    setMenuBarIconState(lastIcon.isValid() ? MenuBarIconState{defaults_.integer(settingskeys::lastMenuBarIconState)}
                                           : MenuBarIconState::Idle);
    statusItem_.setFontSize(buttonFontSize(operatingSystemVersion()));
    statusItem_.setMenu(&statusMenu_);
    StatusMenu::setTitle(statusMenu_.quitMenuItem, localizedString("quitApplicationTitle").arg(u"Quillon"_s));
    connect(statusMenu_.quitMenuItem, &QAction::triggered, this, [] { QCoreApplication::quit(); });
    updateStatusBar();
    chooseLocaleKeys();
    titleMenuItems();
    restorePause();
    startTimerWithInterval(pollintervals::idle);
    firePollTimer();
    registerObservers();
}

void StatusMenuController::chooseLocaleKeys()
{
    const auto system = DataHelper::stringFromSystemVersion(operatingSystemVersion());
    const bool ventura = compareNumerically(system, u"13.0") >= 0;
    enterTimeMachineTitleLocaleKey_ = ventura ? "enterTimeMachineTitleVentura" : "enterTimeMachineTitle";
    skipThisBackupTitleLocaleKey_ = ventura ? "skipThisBackupTitleVentura" : "skipThisBackupTitle";
}

void StatusMenuController::titleMenuItems()
{
    StatusMenu::setTitle(statusMenu_.skipRetryAttemptMenuItem, localizedString("skipRetryAttemptTitle"));
    StatusMenu::setTitle(statusMenu_.updateAvailableMenuItem,
                         u"🟢 %1..."_s.arg(localizedString("updateAvailableMenuTitle")));
    StatusMenu::setTitle(statusMenu_.pauseScheduleMenuItem, localizedString("pauseScheduleForTitle"));
    StatusMenu::setTitle(statusMenu_.resumeScheduleMenuItem, localizedString("resumeScheduleTitle"));
    connect(statusMenu_.resumeScheduleMenuItem, &QAction::triggered, this,
            &StatusMenuController::resumeScheduleClicked);
    for (QAction* item : statusMenu_.pauseDurationItems()) {
        const auto tag = item->data().toLongLong();
        connect(item, &QAction::triggered, this, [this, tag] { pauseForClicked(tag); });
    }
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
