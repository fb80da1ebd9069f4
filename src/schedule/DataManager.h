#pragma once

#include "NextBackup.h"
#include "NotificationCenter.h"
#include "RunLoop.h"
#include "Services.h"
#include "StartDecision.h"
#include "StoredAndSent.h"
#include "UserDefaults.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

namespace quillon {

/// The model of settings and schedule: the rules, the date of the next backup with the timer that starts it, and the
/// latest backup of each disk.
///
/// It is the only writer of the rules, of changed starts and of the latest-backup list, and it ends a pause whose time
/// is over; every other setting is written by the control that changes it and read where it is needed.
class DataManager {
public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        NotificationCenter& notifications;
        LoginItem& loginItem;
    };

    /// Registers the defaults, loads what is stored and plans the next backup.
    explicit DataManager(const Services& services);
    DataManager(const DataManager&) = delete;
    DataManager& operator=(const DataManager&) = delete;

    /// The program's one instance; main creates it before anything asks for it.
    static DataManager& sharedInstance();
    static DataManager& createSharedInstance(const Services& services);

    bool isScheduleEnabled() const { return isScheduleEnabled_; }
    const QList<CalendarIntervalRule>& calendarIntervalSettings() const { return calendarIntervalSettings_; }
    std::optional<Date> nextScheduledBackupDate() const { return nextScheduledBackupDate_; }
    std::optional<Date> retryBackupDate() const { return retryBackupDate_; }
    const QList<BackupInfo>& latestBackupInfo() const { return latestBackupInfo_; }
    /// Key for the titles of the commands that open Time Machine's system settings.
    const char* openSystemPreferencesTitleLocaleKey() const { return openSystemPreferencesTitleLocaleKey_; }
    const Timer& startBackupTimer() const { return startBackupTimer_; }

    /// Does not store the switch: whoever changes the control writes it. An equal value changes nothing.
    void setIsScheduleEnabled(bool enabled);

    void addNewSchedule(const CalendarIntervalRule& rule = {});
    /// `key` is "day" or "time"; the index must be that of a rule.
    void updateBackupScheduleAtIndex(std::size_t index, qlonglong value, const QString& key);
    /// The index must be that of a rule.
    void deleteBackupScheduleAtIndex(std::size_t index);
    /// Stores the rules and plans the next backup anew, also while the schedule is off; a pending retry stays when it
    /// is not later than the new date.
    void saveAndBackupCalendarIntervalSettings();

    /// The next date that the rules give; nothing without rules. A pause that has ended is removed from the settings.
    std::optional<Date> getNextBackupDate();
    /// Plans the next backup; with the schedule on, a pending retry is dropped.
    void scheduleNextBackup();
    /// Arms the start timer for the date, or disarms it.
    void setNextScheduledBackupDate(std::optional<Date> date);
    /// The earliest start from that date on which the rules and the user's changes give.
    std::optional<Date> startFrom(Date date) const;
    std::optional<Date> startAfter(Date date) const { return startFrom(instantAfter(date)); }
    /// The start behind the next one.
    std::optional<Date> startAfterNext() const;
    /// Every start from `from` on that is earlier than `until`, whatever is stored of a pause.
    QList<Date> startsBetween(Date from, Date until) const;
    /// Passes the next start over, or makes it at a later date; those behind it stay. False, and nothing is changed,
    /// where too many are changed already. A retry is no start of this kind.
    bool changeNextStart(std::optional<Date> instead);
    /// Plans a retry in place of the next regular start, unless that comes first; no date cancels a pending retry.
    void setRetryBackupDate(std::optional<Date> date);
    /// Disarms the start timer before the system sleeps; the date stays.
    void pauseBackupSchedule();
    /// The wall clock was set by so much, negative for back. After a large step back the dates that have fired already
    /// count again.
    void clockWasSet(std::chrono::milliseconds step);
    /// What becomes of the next start.
    startdecision::Decision startDecision(startdecision::Occasion occasion, bool isMarkedAsMissed) const;
    /// Tells the program to start a backup, and plans the one after it.
    void makeScheduledStart();
    static nextbackup::TimeComponents timeComponentsFromTimeInterval(double seconds);

    /// Notes a completed backup: one record a disk, a new one ahead of the others; stored at once.
    void recordLatestBackup(const QString& diskIdentifier, const QString& diskName, std::int64_t totalBytes, Date date);
    void saveLatestBackupInfo();
    QList<BackupInfo> loadLatestBackupInfo() const;
    static QVariantList archiveLatestBackInfo(const QList<BackupInfo>& records);
    static QList<BackupInfo> unArchiveLatestBackupInfo(const QVariantList& archived);

private:
    void registerUserDefaults();
    QList<ChangedStart> changedStarts() const;
    void startTimerFired();

    RunLoop& runLoop_;
    UserDefaults& defaults_;
    NotificationCenter& notifications_;
    LoginItem& loginItem_;

    bool isScheduleEnabled_ = false;
    std::optional<Date> retryBackupDate_;
    QList<CalendarIntervalRule> calendarIntervalSettings_;
    QList<CalendarIntervalRule::Foreign> foreignEntries_; ///< among the stored rules
    std::optional<Date> nextScheduledBackupDate_;
    QList<BackupInfo> latestBackupInfo_;
    const char* openSystemPreferencesTitleLocaleKey_ = nullptr;
    Timer startBackupTimer_;
    std::optional<Date> lastFiredDate_;
};

} // namespace quillon
