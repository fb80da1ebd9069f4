#pragma once

#include "AlertPopover.h"
#include "NextBackup.h"
#include "RunLoop.h"
#include "Services.h"
#include "TMUtil.h"

#include <QTime>
#include <QWidget>

#include <memory>

class QAbstractButton;

namespace Ui {
class SettingsView;
}

namespace quillon {

class CalendarIntervalCellView;
class DataManager;
class MoreSettingsPage;
class NotificationCenter;
class ScreenFittingArea;
class UserDefaults;
struct SetupAdvice;

/// The settings panel. Every control acts and is stored the moment the user changes it; there is nothing to apply or to
/// cancel.
///
/// What the schedule's two pages and the options show and take is in SettingsViewController_pages.cpp; the rest, alerts
/// included, in SettingsViewController.cpp. Behind "More..." lies a MoreSettingsPage.
class SettingsViewController final : public QWidget {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        NotificationCenter& notifications;
        DataManager& dataManager;
        LoginItem& loginItem;
        TMUtil& tmutil;
        Workspace& workspace;
        AlertPresenter& alerts;
    };

    static constexpr qsizetype mostRules = 5;

    /// The services must outlive the panel.
    explicit SettingsViewController(const Services& services, QWidget* parent = nullptr);
    ~SettingsViewController() override;

    /// The text of the next-backup line.
    QString getNextScheduledBackup() const;
    /// A property of the panel that stays empty: the schedule's rules are `DataManager`'s.
    QList<CalendarIntervalRule>& calendarIntervalSettings() { return calendarIntervalSettings_; }
    /// Hours, 1 to 24; presentation only, the schedule follows the rules.
    int scheduleIntervalValue() const { return scheduleIntervalValue_; }
    /// Whether an alert is up and blocks the panel.
    bool shouldDisableUserControls() const { return shouldDisableUserControls_; }

    /// The time of day of a rule's seconds since midnight; whole days are dropped, as the schedule does.
    static QTime todayWithIntervalSinceMidnight(double seconds);
    /// Whole minutes.
    static int secondsSinceMidnightFromDate(QTime time);

Q_SIGNALS:
    void backupLogButtonPressed();

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // Set-up
    void titleControls();
    void nameControls();
    void arrangeForFont();
    void connectMorePage();
    void turnToMore();
    void turnBack();

    // Schedule
    void connectScheduleControls();
    void showStoredSchedule();
    void reloadCalendarIntervalTableView();
    void connectRow(CalendarIntervalCellView* view);
    void refreshNextBackupLabel();
    void enableScheduleCheckmarkChanged(bool on);
    void schedulePopupChanged();
    void scheduleIntervalValueDidChange(int value);
    void updateScheduleIntervalValueControls();
    void addCalendarIntervalButtonPressed();
    void calendarIntervalDayPopupButtonChanged(const CalendarIntervalCellView& sender);
    void calendarIntervalDatePickerChanged(const CalendarIntervalCellView& sender);

    // Options
    void connectOptionControls();
    void showStoredOptions();
    void enableRetryAtMissedScheduleCheckmarkChanged(bool on);
    void enableRetryAtFailureCheckmarkChanged(bool on);
    void storeRetrySwitch(const QString& key, bool on);
    void showRemainingMinutesCheckmarkChanged(bool on);
    void showMenuBarIconOnlyCheckmarkChanged(bool on);
    void enableDetailedTimeUnlessIconOnly();
    void enableMenuBarColorsCheckmarkChanged(bool on);
    void rotateBackupDisksCheckmarkChanged(bool on);
    void enableAppAtSystemStartCheckmarkChanged(bool on);
    void storeSwitch(const QString& key, bool on);
    bool switchIsOn(const QString& key) const;
    void postShouldUpdateStatusBar();

    // Alerts
    void connectAlertControls();
    void warningButtonPressed();
    void showSetupAdvice(const SetupAdvice& advice);
    void deleteButtonPressed(const CalendarIntervalCellView& sender);
    void deleteRule(int row);
    void showRuleLimit();
    void showRefusedLoginItem();
    void retryAtMissedScheduleHelpButtonPressed();
    void retryAtFailureHelpButtonPressed();
    void showHelp(QAbstractButton* sender, const QString& title, const QString& message);
    void runAlert(const AlertRequest& request, QWidget* target, RectEdge edge,
                  AlertPopover::CompletionBlock completionBlock = {});
    void showBlockingTransparentOverlay(bool show);

    RunLoop& runLoop_;
    UserDefaults& defaults_;
    NotificationCenter& notifications_;
    DataManager& sharedDataManager_;
    LoginItem& loginItem_;
    TMUtil& tmutil_;
    std::unique_ptr<Ui::SettingsView> ui_;
    ScreenFittingArea* firstArea_;
    ScreenFittingArea* moreArea_;
    MoreSettingsPage* morePage_;
    Timer nextBackupTimer_; ///< runs while the panel is visible
    QPointer<QWidget> focusBeforeAlert_;
    QList<CalendarIntervalRule> calendarIntervalSettings_;
    int scheduleIntervalValue_ = 2;
    bool shouldDisableUserControls_ = false;
};

} // namespace quillon
