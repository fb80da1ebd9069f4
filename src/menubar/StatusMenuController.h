#pragma once

#include "AlertPopover.h"
#include "AlertPresenter.h"
#include "BackupDisksMenu.h"
#include "ClockWatch.h"
#include "DataManager.h"
#include "DateFormatter.h"
#include "HistoryMenu.h"
#include "MenuBarIconState.h"
#include "NotificationCenter.h"
#include "Popover.h"
#include "RunLoop.h"
#include "RunProgress.h"
#include "StatusItem.h"
#include "StatusMenu.h"
#include "TMUtil.h"
#include "UserDefaults.h"
#include "Workspace.h"

#include <QList>
#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>

namespace quillon {

/// The heart of the program: polls Time Machine, follows its runs, starts scheduled backups, plans retries, and keeps
/// the menu-bar item and the status menu true. Main thread only.
///
/// One file per concern: _polling, _statemachine, _menutitles, _schedule, _wake, _pause, _title, _icon, and for the
/// menu _refresh (as it opens), _history, _commands and _backupnow.
class StatusMenuController final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        NotificationCenter& notifications;
        Workspace& workspace;
        TMUtilQueue& tmutilQueue;
        TaskLauncher& launcher;
        AlertPresenter& alerts;
        DataManager& dataManager;
        LoginItem& loginItem;
        StatusItem& statusItem;
    };

    explicit StatusMenuController(const Services& services);
    ~StatusMenuController() override;

    /// Sets the item and the menu up, restores a pause, starts polling and observing. Called once, at start.
    void awakeFromNib();

    TMState tmState() const { return tmState_; }
    TMState uiState() const { return uiState_; }
    const QString& tmPhase() const { return tmPhase_; }
    const RunProgress& progress() const { return progress_; }
    MenuBarIconState menuBarIconState() const { return menuBarIconState_; }
    const QList<BackupDestination>& backupDisks() const { return backupDisks_; }
    StatusMenu& statusMenu() { return statusMenu_; }
    /// What the item shows: the upper line, and the lower one.
    const QString& statusTitle() const { return statusTitle_; }
    const QString& statusText() const { return statusText_; }

    /// Polls every `interval` seconds from now on, also while the menu is open.
    void startTimerWithInterval(double interval);
    void stopTimer();
    /// Asks for the status, unless the answer to such a question is still awaited.
    void requestTimeMachineStatus();
    /// Queues a step of the state machine and returns at once.
    void updateStatusBar();
    /// An idle icon does not replace the mark of a failure or of a missed schedule.
    void setMenuBarIconState(MenuBarIconState state);
    std::optional<SymbolImage> getMenuBarIcon() const;
    void updateStatusBarTitle(const QString& title, const QString& text);
    QString localisedStringForBackupPhase(const QString& rawPhase) const;

    /// Style 1 is positional ("1:30"), style 2 abbreviated ("1h 30m"); precision adds the second unit from one hour up,
    /// seconds add it below.
    static QString getTimeStringFromInterval(double seconds, int style, bool includePrecision, bool includeSeconds);
    /// In decimal units.
    static QString stringRepresentationOfBytes(std::int64_t bytes);
    QString nameForBackupDiskWithIdentifier(const QString& identifier) const;
    static QString nameForBackupDiskWithName(const QString& name);
    void updateBackupDiskMenuItem();

    /// Brings the menu up to date as it opens: the disks to back up to and the latest backup of each. The menu is not
    /// delayed; its submenus follow when Time Machine has answered.
    void menuWillOpen();
    /// Enables or disables the items that change settings or start something.
    void enableMenuButtons(bool enable);

    /// Starts a backup, or stops the one that runs. Ignored while an earlier click is under way.
    void backupNowClicked();
    /// Starts a backup as the item does that offers one, for somebody who does not see it: a run is left alone.
    void backupNowRequested();
    /// Starts a backup to that destination. Ignored while an earlier click is under way.
    void backupNowSubMenuItemClicked(const QString& identifier);
    void skipRetryAttemptClicked();
    void enterTimeMachineClicked();
    void openSystemPreferences();
    void preferencesClicked();
    void aboutClicked();
    void updateAvailableClicked();
    void quitClicked();
    /// Explains the history of backups in a popover.
    void allBackupInfoHelpButtonPressed();

    /// Pauses the schedule for a length in seconds, replacing a pause that runs.
    void pauseForClicked(std::int64_t tag);
    void resumeScheduleClicked();
    /// Checks the pause item of that length and no other.
    void setTogglesForPauseMenuItems(std::int64_t tag);
    void schedulePauseScheduleExpirationTimer();
    void stopPauseScheduleExpirationTimer();

Q_SIGNALS:
    /// A step of the state machine has run: what the item and the menu show may have changed.
    void statusBarUpdated();
    /// The icon has changed; within one step of the state machine it may do so more than once.
    void menuBarIconStateChanged();
    /// The program is to end.
    void terminate();

private:
    enum class Wake { FromSleep, ClockJump };
    static constexpr int abbreviated = 2; ///< style of a duration
    /// What a scheduled start was decided on.
    struct ScheduleSwitches {
        bool enabled;
        std::optional<Date> pauseUntil;

        bool operator==(const ScheduleSwitches&) const = default;
    };

    // Start-up
    void chooseLocaleKeys();
    void titleMenuItems();
    void connectCommands();
    void createPopovers();
    void restorePause();
    void registerObservers();

    // Polling
    void pollTimerTicked();
    void firePollTimer();
    void handleStatus(const TMStatus& status);
    void noteRunState(const TMStatus& status);
    void markCompletion(const TMStatus& status);
    void requestBackupDisks();
    /// Asks what Time Machine does now and acts once, however many reports the answer brings.
    void askForStatus(std::function<void(const TMStatus& status)> act);
    /// Takes an answer in as a poll's, and its state also in place of "starting".
    void takeOverStatus(const TMStatus& status);

    // State machine
    bool isActive() const;
    void runStateMachineStep();
    void endRun();
    void recordCompletedRun();
    void markRunFailed();
    void beginRun();
    void closeDeadEnds();
    void showIdleTitle();
    void showActiveTitle();
    QString activeStatusText() const;

    // Menu titles
    void updateMenuItems();
    QString backupText(std::optional<Date> date, std::int64_t bytes) const;
    QString lastBackupText() const;
    QString phaseItemTitle() const;
    QString remainingTimeItemTitle() const;
    void updateBackupNowItem();
    void updatePauseItemTitle();

    // The open menu
    void refreshMenu(const QList<BackupDestination>& disks);
    void withdrawSubmenus();
    void offerBackupDisks();
    void carryLegacyRecordOver();
    QList<HistoryMenu::Row> historyRows() const;
    void showHistory();

    // Commands
    void requestStart(const QString& identifier, bool rotateBackupDisks);
    void answerBackupNow(const TMStatus& status, bool offeredToStop);
    void requestStop();
    void tellOfFailedStart(std::int32_t exitStatus);
    void showPopover(Popover& popover);
    void openDownloadPage();

    // Schedule
    void startScheduledBackup();
    void askForScheduledStart(const ScheduleSwitches& switches);
    void answerScheduledStart(const TMStatus& status, const ScheduleSwitches& switches);
    /// The backup-now item is disabled until commandSettled(): clicks would have no effect.
    void commandBegins();
    /// A start or a stop has been answered: the next one may come.
    void commandSettled();
    void startAccepted();
    /// Whether a retry was planned: the key is on and the schedule not paused.
    bool setRetryInFiveMinutesIfEnabled(const QString& enablingKey);
    Date freshRetryDate() const;

    // Sleep, wake, clock
    void prepareForSleep();
    void handleWake(Wake wake);
    bool scheduleWasMissed(Wake wake) const;
    void checkClock();
    ClockWatch::Change takeClockAsItIs();

    // Pause
    void pauseTimerFired(Date end);
    void showPaused(Date end, std::int64_t tag);
    void showNotPaused();
    void titlePauseItem(Date end);

    bool switchIsOn(const QString& key) const;
    bool iconOnly() const;
    QString updateMarker() const;
    std::optional<int> shownPercent() const;
    void setButtonTitle(const QString& title);

    RunLoop& runLoop_;
    UserDefaults& defaults_;
    NotificationCenter& notifications_;
    Workspace& workspace_;
    AlertPresenter& alerts_;
    TMUtilQueue& tmutilQueue_;
    TaskLauncher& launcher_;
    DataManager& sharedDataManager_;
    LoginItem& loginItem_;
    StatusItem& statusItem_;
    TMUtil tmutil_;
    StatusMenu statusMenu_{runLoop_};
    BackupDisksMenu backupDisksMenu_{&statusMenu_};
    HistoryMenu historyMenu_{&statusMenu_};
    std::unique_ptr<Popover> aboutPopover_;
    std::unique_ptr<Popover> preferencesPopover_;
    std::weak_ptr<AlertPopover> historyHelp_;
    const char* enterTimeMachineTitleLocaleKey_ = nullptr;
    const char* skipThisBackupTitleLocaleKey_ = nullptr;

    TMState tmState_ = TMState::Unknown;
    TMState uiState_ = TMState::NotRunning;
    QString tmPhase_;
    QString previousTmPhase_;
    RunProgress progress_;
    bool stopBackupConfirmed_ = false;
    bool shouldEnableMenuButons_ = true;
    bool commandIsUnderWay_ = false; ///< a start or a stop, by the user or by the schedule
    std::optional<ScheduleSwitches> waitingStart_;
    bool menuDisksAreAwaited_ = false; ///< the menu has been opened and not yet filled
    bool disksAreAwaited_ = false;     ///< for the name of a run's disk
    std::optional<Date> backupCompleteDate_;
    std::optional<QString> activeBackupDiskIdentifier_;
    QList<BackupDestination> backupDisks_;
    std::optional<QString> latestAppVersion_;
    MenuBarIconState menuBarIconState_ = MenuBarIconState::None;
    QString statusTitle_;
    QString statusText_;

    Timer repeatingIntervalTimer_;
    double pollInterval_ = 0;
    int pollsAwaited_ = 0;
    std::chrono::milliseconds startAccepted_{0}; ///< on the uptime clock
    bool pollIsFired_ = false;
    Timer checkPauseScheduleExpirationTimer_;
    ClockWatch clockWatch_;
    std::optional<std::chrono::milliseconds> asleepSince_; ///< on the uptime clock
};

} // namespace quillon
