#include "Shown.h"

#include "LocalDates.h"
#include "ScopedEnvironment.h"

#include <functional>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using shown::Snapshot;

class Shown : public testing::Test {
protected:
    /// A report as `tmutil status` gives it, taken in and acted on.
    void report(TMState state, const QString& phase, double percent = 0, double remaining = 0, std::int64_t bytes = 0)
    {
        moment.run.take({false, state, phase, percent, remaining, bytes, u"B"_s}, BackupRun::Asked::ByPoll, moment.now);
        moment.run.step();
    }
    QString title() const
    {
        const auto title = shown::itemTitle(moment);
        return title ? title->title + u"|"_s + title->text : u"as it was"_s;
    }
    shown::Menu menu() const { return shown::menu(moment); }

    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    ScopedEnvironment language{"LC_ALL", "en_GB.UTF-8"};
    Snapshot moment{.now = local(2026, 11, 21, 10)};
};

TEST_F(Shown, AnIdleItemTellsOfTheNextBackup)
{
    EXPECT_EQ(title(), u"as it was"_s) << "nothing has been reported yet";
    EXPECT_EQ(shown::idleIcon(moment), std::nullopt);
    report(TMState::NotRunning, u"Not Running"_s);
    const struct {
        std::function<void(Snapshot&)> change;
        QString title, remainingTime;
    } cases[] = {
        {[](Snapshot&) {}, u"Next:|N/A"_s, u"Next Backup: N/A "_s},
        {[](Snapshot& s) { s.nextScheduledBackupDate = s.now + 7140s; }, u"Next:|1h 59m"_s,
         u"Next Backup: Today, 11:59 "_s},
        {[](Snapshot& s) { s.detailedTime = false; }, u"Next:|1h"_s, u"Next Backup: Today, 11:59 "_s},
        {[](Snapshot& s) { s.retryBackupDate = s.nextScheduledBackupDate; }, u"Retry:|1h"_s,
         u"Next Backup: Today, 11:59 (Retry)"_s},
        {[](Snapshot& s) { s.updateIsAvailable = true; }, u"Retry: 🟢|1h"_s, u"Next Backup: Today, 11:59 (Retry)"_s},
        {[](Snapshot& s) { s.isScheduleEnabled = false; }, u"Retry: 🟢|Disabled"_s,
         u"Next Backup: Disabled (Retry)"_s},
        {[](Snapshot& s) { s.iconOnly = true; }, u"|"_s, u"Next Backup: Disabled (Retry)"_s},
    };
    for (const auto& row : cases) {
        row.change(moment);
        EXPECT_EQ(title(), row.title);
        EXPECT_EQ(menu().remainingTime, row.remainingTime);
        EXPECT_EQ(shown::idleIcon(moment),
                  moment.iconOnly ? MenuBarIconState::UpdateAvailable : MenuBarIconState::Idle);
        EXPECT_EQ(menu().skipRetryIsShown, moment.retryBackupDate.has_value());
        EXPECT_EQ(menu().updateIsShown, moment.updateIsAvailable);
        EXPECT_EQ(menu().pauseIsEnabled, moment.isScheduleEnabled);
    }
    moment.updateIsAvailable = false;
    EXPECT_EQ(shown::idleIcon(moment), std::nullopt);
}

TEST_F(Shown, ARunTellsHowFarItHasCome)
{
    const struct {
        TMState state;
        QString phase;
        double percent, remaining;
        std::int64_t bytes;
        QString title, phaseTitle, remainingTime;
    } cases[] = {
        {TMState::Running, u"FindingChanges"_s, 0, 0, 0, u"0.0%|Starting"_s, u"Phase: Preparing Backup (0.0%)"_s,
         u"Remaining Time: Calculating..."_s},
        {TMState::Running, u"Copying"_s, 0.009, 0, 5, u"0.9%|Starting"_s, u"Phase: Copying (0.9%, 5 bytes copied)"_s,
         u"Remaining Time: Calculating..."_s},
        {TMState::Running, u"Copying"_s, 0.01, 0, 0, u"1.0%|Running"_s, u"Phase: Copying (1.0%, 5 bytes copied)"_s,
         u"Remaining Time: Calculating..."_s},
        {TMState::Running, u"Copying"_s, 0.4265, 3900, 1'500'000, u"42.6%|1h 5m"_s,
         u"Phase: Copying (42.6%, 1.5 MB copied)"_s, u"Remaining Time: 1h 5m"_s},
        {TMState::Running, u"Copying"_s, 0.5, 90, 1'500'000, u"50.0%|1m"_s, u"Phase: Copying (50.0%, 1.5 MB copied)"_s,
         u"Remaining Time: 1m 30s"_s},
        {TMState::Running, u"Copying"_s, 0.6, -1, 1'500'000, u"60.0%|..."_s, u"Phase: Copying (60.0%, 1.5 MB copied)"_s,
         u"Remaining Time: Calculating..."_s},
        {TMState::Stopping, u"Stopping"_s, 0.6, 90, 1'500'000, u"60.0%|Stopping"_s, u"Phase: Stopping"_s,
         u"Remaining Time: N/A"_s},
        {TMState::Unknown, u"Unknown"_s, 0, 0, 0, u"as it was"_s, u"Latest Backup: N/A"_s, u"Next Backup: N/A "_s},
    };
    for (const auto& row : cases) {
        report(row.state, row.phase, row.percent, row.remaining, row.bytes);
        EXPECT_EQ(title(), row.title);
        EXPECT_EQ(menu().phase, row.phaseTitle);
        EXPECT_EQ(menu().remainingTime, row.remainingTime);
        EXPECT_FALSE(menu().pauseIsEnabled);
        EXPECT_EQ(shown::idleIcon(moment), std::nullopt);
    }
    BackupRun thinning;
    thinning.take({false, TMState::Running, u"ThinningPostBackup"_s, 0, 0, 0, {}}, BackupRun::Asked::ByPoll, {});
    moment.run = thinning;
    EXPECT_EQ(title(), u"0.0%|Running"_s);
    moment.run.startAccepted(0ms);
    moment.updateIsAvailable = true;
    EXPECT_EQ(title(), u"0.0% 🟢|Starting"_s);
    EXPECT_EQ(menu().phase, u"Phase: Starting"_s);
    EXPECT_EQ(menu().remainingTime, u"Remaining Time: N/A"_s);
    moment.iconOnly = true;
    EXPECT_EQ(title(), u"|"_s);
}

TEST_F(Shown, TheBackupNowItemOffersWhatAClickWouldDo)
{
    const struct {
        TMState state;
        bool stopAccepted, commandIsUnderWay;
        QString title;
        bool isEnabled, offersToStop;
    } cases[] = {
        {TMState::NotRunning, false, false, u"Back Up Now"_s, true, false},
        {TMState::NotRunning, false, true, u"Back Up Now"_s, false, false},
        {TMState::Unknown, false, false, u"Back Up Now"_s, true, false},
        {TMState::Running, false, false, u"Skip This Backup"_s, true, true},
        {TMState::Running, false, true, u"Skip This Backup"_s, false, true},
        {TMState::Running, true, false, u"Stopping..."_s, false, false},
        {TMState::Stopping, false, false, u"Stopping..."_s, false, false},
        {TMState::Starting, false, false, u"Skip This Backup"_s, true, true},
    };
    for (const auto& row : cases) {
        moment.run = {};
        if (row.state == TMState::Starting)
            moment.run.startAccepted(0ms);
        else
            report(row.state, u"Copying"_s, 0.5, 90);
        if (row.stopAccepted)
            moment.run.stopAccepted();
        moment.commandIsUnderWay = row.commandIsUnderWay;
        EXPECT_EQ(menu().backupNow, row.title);
        EXPECT_EQ(menu().backupNowIsEnabled, row.isEnabled) << row.title.toStdString();
        EXPECT_EQ(menu().offersToStop, row.offersToStop);
        EXPECT_EQ(menu().disksAreEnabled, !row.commandIsUnderWay);
        if (row.stopAccepted) {
            EXPECT_EQ(title(), u"50.0%|Stopping"_s);
        }
    }
}

TEST_F(Shown, TheDiskInUseIsNamedOnceThereAreTwo)
{
    report(TMState::NotRunning, u"Not Running"_s);
    moment.lastBackupDisk = u"A"_s;
    moment.backupDisks = {{u"A"_s, u"50%1 & more"_s}};
    EXPECT_EQ(menu().backupDisk, std::nullopt);
    moment.backupDisks.append({u"B"_s, u"Second%20Disk"_s});
    EXPECT_EQ(menu().backupDisk, u"Backup Disk: 50%1 & more"_s);
    report(TMState::Stopping, u"Copying"_s);
    EXPECT_EQ(menu().backupDisk, u"Backup Disk: Second Disk"_s);
    report(TMState::NotRunning, u"Not Running"_s);
    moment.lastBackupDisk = u"gone"_s;
    EXPECT_EQ(menu().backupDisk, u"Backup Disk: N/A"_s);
}

TEST_F(Shown, DatesOfBackupsAndPauses)
{
    moment.lastBackupDate = moment.now - 24h;
    moment.lastBackupBytes = 1000;
    EXPECT_EQ(menu().phase, u"Latest Backup: Yesterday, 10:00 (1 KB)"_s);
    moment.lastBackupBytes = 0;
    EXPECT_EQ(menu().phase, u"Latest Backup: Yesterday, 10:00"_s);
    EXPECT_EQ(menu().pausedUntil, std::nullopt);
    moment.pauseUntil = moment.now;
    EXPECT_EQ(menu().pausedUntil, std::nullopt);
    moment.pauseUntil = moment.now + 1ms;
    EXPECT_EQ(menu().pausedUntil, u"Schedule Paused Until: Today, 10:00"_s);
}

TEST(ShownIcon, arkOfTroubleOutlivesIdleness)
{
    using enum MenuBarIconState;
    for (const auto current : {None, Idle, Running, Completed, UpdateAvailable, Failed, MissedSchedule})
        for (const auto wanted : {Idle, Running, Completed, UpdateAvailable, Failed, MissedSchedule}) {
            const bool trouble = current == Failed || current == MissedSchedule;
            EXPECT_EQ(shown::iconReplaces(wanted, current), wanted != current && (wanted != Idle || !trouble));
        }
}

} // namespace quillon
