#pragma once

#include "BackupCommands.h"
#include "ConcernWatch.h"
#include "DisksInMenu.h"
#include "MachineWatch.h"
#include "NotificationCenter.h"
#include "RunFollower.h"
#include "RunLedger.h"
#include "ScheduleWatch.h"
#include "Services.h"
#include "Shown.h"
#include "StatusItemFace.h"

#include <QList>
#include <QObject>
#include <QString>

#include <cstdint>
#include <optional>
#include <utility>

namespace quillon {

/// The heart of the program: joins what follows Time Machine's runs, what decides on the schedule and what the user
/// commands to the menu-bar item and the status menu, and keeps both true. What is shown is decided in shown, what
/// becomes of a run in BackupRun, and when a backup starts in startdecision; it applies what they say.
class StatusMenuController final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        NotificationCenter& notifications;
        Workspace& workspace;
        TMUtil& tmutil;
        AlertPresenter& alerts;
        DataManager& dataManager;
        LoginItem& loginItem;
        StatusItem& statusItem;
        Ledger& ledger;
        UserNotifications& userNotifications;
        AwakeLock& awakeLock;
        PowerSupply& powerSupply;
        MountWatch& mountWatch;
        Hooks& hooks;
    };

    explicit StatusMenuController(const Services& services);
    ~StatusMenuController() override;

    /// Sets the item and the menu up, restores a pause, starts polling and observing. Called once, at start.
    void awakeFromNib();

    TMState tmState() const { return follower_.run().tmState(); }
    TMState uiState() const { return follower_.run().uiState(); }
    const QString& tmPhase() const { return follower_.run().tmPhase(); }
    const RunProgress& progress() const { return follower_.run().progress(); }
    MenuBarIconState menuBarIconState() const { return face_.menuBarIconState(); }
    /// No backup runs, and power allows one that nobody asks for.
    bool mayStart() const { return !follower_.run().isActive() && machine_.powerAllowsStart(); }
    const QList<BackupDestination>& backupDisks() const { return disks_.backupDisks(); }
    StatusMenu& statusMenu() { return statusMenu_; }
    /// What the item shows: the upper line, and the lower one.
    const shown::ItemTitle& itemTitle() const { return face_.title(); }
    /// All that what is shown is made of, as it is now.
    shown::Snapshot snapshot() const;

    void startTimerWithInterval(double interval) { follower_.startTimerWithInterval(interval); }
    void stopTimer() { follower_.stopTimer(); }
    void requestTimeMachineStatus() { follower_.requestTimeMachineStatus(); }
    void updateStatusBar() { follower_.updateStatusBar(); }
    void setMenuBarIconState(MenuBarIconState state) { face_.setMenuBarIconState(state); }
    std::optional<SymbolImage> getMenuBarIcon() const { return face_.getMenuBarIcon(); }
    void updateStatusBarTitle(const QString& title, const QString& text) { face_.updateStatusBarTitle(title, text); }
    QString nameForBackupDiskWithIdentifier(const QString& identifier) const;
    void updateBackupDiskMenuItem();
    static QString localisedStringForBackupPhase(const QString& rawPhase) { return words::phase(rawPhase); }
    static QString stringRepresentationOfBytes(std::int64_t bytes) { return words::bytes(bytes); }
    static QString nameForBackupDiskWithName(const QString& name) { return words::diskName(name); }
    static QString getTimeStringFromInterval(double seconds, int style, bool includePrecision, bool includeSeconds)
    {
        return words::timeFromInterval(seconds, style, includePrecision, includeSeconds);
    }

    void menuWillOpen() { disks_.menuWillOpen(); }
    /// Enables or disables the items that change settings or start something.
    void enableMenuButtons(bool enable);

    // Who gives a command from elsewhere than the menu has a handler told what became of it.

    void backupNowClicked(CommandResultHandler told = {}) { commands_.backupNowClicked(std::move(told)); }
    /// What somebody does who sees no item: a run is left alone.
    void backupNowRequested(CommandResultHandler told = {}) { commands_.backupNowRequested(std::move(told)); }
    void backupNowSubMenuItemClicked(const QString& identifier, CommandResultHandler told = {})
    {
        commands_.backupNowSubMenuItemClicked(identifier, std::move(told));
    }
    void skipRetryAttemptClicked();
    void enterTimeMachineClicked();
    void openSystemPreferences();
    void preferencesClicked() { panels_.showSettings(); }
    void aboutClicked() { panels_.showAbout(); }
    void updateAvailableClicked();
    void quitClicked() { Q_EMIT terminate(); }
    void allBackupInfoHelpButtonPressed() { panels_.showHistoryHelp(); }

    void pauseForClicked(std::int64_t tag) { pause_.pauseForClicked(tag); }
    void pauseUntil(Date end, std::int64_t tag) { pause_.pauseUntil(end, tag); }
    void resumeScheduleClicked() { pause_.resumeScheduleClicked(); }
    // The next start, which is no retry, as the user has asked. False where nothing could be changed.

    bool skipNextStart();
    bool postponeNextStart(std::chrono::seconds by);

    void setTogglesForPauseMenuItems(std::int64_t tag) { pause_.setTogglesForPauseMenuItems(tag); }
    void schedulePauseScheduleExpirationTimer() { pause_.schedulePauseScheduleExpirationTimer(); }
    void stopPauseScheduleExpirationTimer() { pause_.stopPauseScheduleExpirationTimer(); }

Q_SIGNALS:
    /// A step of the run has been made: what the item and the menu show may have changed.
    void statusBarUpdated();
    /// The icon has changed; within one step of the run it may do so more than once.
    void menuBarIconStateChanged();
    /// The program is to end.
    void terminate();

private:
    void titleMenuItems();
    void connectParts();
    void connectCommands();
    void registerObservers();

    void showStep(const BackupRun::Step& step);
    void beginRun();
    void endRun(const BackupRun::End& end);
    void recordCompletedRun(const BackupRun::End& end);
    void showMenu(const shown::Menu& menu);
    void showBackupDisk(const std::optional<QString>& title);
    void showBackupNow(const shown::Menu& menu);

    Services services_;
    StatusMenu statusMenu_;
    RunFollower follower_;
    BackupCommands commands_;
    DisksInMenu disks_;
    SchedulePause pause_;
    Panels panels_;
    StatusItemFace face_;
    ScheduleWatch schedule_;
    MachineWatch machine_;
    RunLedger runLedger_;
    ConcernWatch concerns_;
    const char* enterTimeMachineTitleLocaleKey_ = nullptr;
    const char* skipThisBackupTitleLocaleKey_ = nullptr;
    bool shouldEnableMenuButons_ = true;
    std::optional<QString> latestAppVersion_;
};

} // namespace quillon
