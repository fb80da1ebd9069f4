#include "Shown.h"

#include "LocalDates.h"
#include "ScopedEnvironment.h"

#include <functional>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using shown::Snapshot;
using enum TMState;

class Shown : public testing::Test {
protected:
    /// A report as `tmutil status` gives it, taken in and acted on.
    void report(TMState state, const QString& phase, double percent = 0, double remaining = 0, std::int64_t bytes = 0)
    {
        moment.run.take({false, state, phase, percent, remaining, bytes, u"B"_s}, BackupRun::Asked::ByPoll, moment.now);
        moment.run.step();
    }
    shown::Menu menu() const { return shown::menu(moment); }
    /// What the item and the two lines of the menu say.
    std::string texts() const
    {
        const auto title = shown::itemTitle(moment);
        return QStringList{title ? title->title : u"as"_s, title ? title->text : u"it was"_s, menu().phase,
                           menu().remainingTime}
            .join(u" | "_s)
            .toStdString();
    }

    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    ScopedEnvironment language{"LC_ALL", "en_GB.UTF-8"};
    Snapshot moment{.now = local(2026, 11, 21, 10)};
};

TEST_F(Shown, AnIdleItemTellsOfTheNextBackup)
{
    EXPECT_EQ(texts(), "as | it was | Latest Backup: N/A | Next Backup: N/A ") << "nothing has been reported yet";
    EXPECT_EQ(shown::idleIcon(moment), std::nullopt);
    report(NotRunning, u"Not Running"_s);
    const struct {
        std::function<void(Snapshot&)> change;
        const char* texts;
    } cases[] = {
        {[](Snapshot&) {}, "Next: | N/A | Latest Backup: N/A | Next Backup: N/A "},
        {[](Snapshot& s) { s.nextScheduledBackupDate = s.now + 7140s; },
         "Next: | 1h 59m | Latest Backup: N/A | Next Backup: Today, 11:59 "},
        {[](Snapshot& s) { s.detailedTime = false; }, "Next: | 1h | Latest Backup: N/A | Next Backup: Today, 11:59 "},
        {[](Snapshot& s) { s.retryBackupDate = s.nextScheduledBackupDate; },
         "Retry: | 1h | Latest Backup: N/A | Next Backup: Today, 11:59 (Retry)"},
        {[](Snapshot& s) { s.lastBackupDate = s.now - 24h; },
         "Retry: | 1h | Latest Backup: Yesterday, 10:00 | Next Backup: Today, 11:59 (Retry)"},
        {[](Snapshot& s) { s.lastBackupBytes = 1000; },
         "Retry: | 1h | Latest Backup: Yesterday, 10:00 (1 KB) | Next Backup: Today, 11:59 (Retry)"},
        {[](Snapshot& s) { s.updateIsAvailable = true; },
         "Retry: 🟢 | 1h | Latest Backup: Yesterday, 10:00 (1 KB) | Next Backup: Today, 11:59 (Retry)"},
        {[](Snapshot& s) { s.isScheduleEnabled = false; },
         "Retry: 🟢 | Disabled | Latest Backup: Yesterday, 10:00 (1 KB) | Next Backup: Disabled (Retry)"},
        {[](Snapshot& s) { s.iconOnly = true; },
         " |  | Latest Backup: Yesterday, 10:00 (1 KB) | Next Backup: Disabled (Retry)"},
    };
    for (const auto& row : cases) {
        row.change(moment);
        EXPECT_EQ(texts(), row.texts);
        EXPECT_EQ(shown::idleIcon(moment),
                  moment.iconOnly ? MenuBarIconState::UpdateAvailable : MenuBarIconState::Idle);
        EXPECT_EQ(menu().skipRetryIsShown, moment.retryBackupDate.has_value());
        EXPECT_EQ(menu().updateIsShown, moment.updateIsAvailable);
        EXPECT_EQ(menu().pauseIsEnabled, moment.isScheduleEnabled);
    }
    moment.updateIsAvailable = false;
    EXPECT_EQ(shown::idleIcon(moment), std::nullopt);
    moment.pauseUntil = moment.now + 1ms;
    EXPECT_EQ(menu().pausedUntil, u"Schedule Paused Until: Today, 10:00"_s);
    moment.pauseUntil = moment.now;
    EXPECT_EQ(menu().pausedUntil, std::nullopt);
}

TEST_F(Shown, ARunTellsHowFarItHasCome)
{
    const struct {
        TMState state;
        QString phase;
        double percent, remaining;
        std::int64_t bytes;
        const char* texts;
    } cases[] = {
        {Running, u"FindingChanges"_s, 0, 0, 0,
         "0.0% | Starting | Phase: Preparing Backup (0.0%) | Remaining Time: Calculating..."},
        {Running, u"Copying"_s, 0.009, 0, 1,
         "0.9% | Starting | Phase: Copying (0.9%, 1 bytes copied) | Remaining Time: Calculating..."},
        {Running, u"Copying"_s, 0.01, 0, 0,
         "1.0% | Running | Phase: Copying (1.0%, 1 bytes copied) | Remaining Time: Calculating..."},
        {Running, u"Copying"_s, 0.4265, 3900, 1'500'000,
         "42.6% | 1h 5m | Phase: Copying (42.6%, 1.5 MB copied) | Remaining Time: 1h 5m"},
        {Running, u"Copying"_s, 0.5, 90, 0,
         "50.0% | 1m | Phase: Copying (50.0%, 1.5 MB copied) | Remaining Time: 1m 30s"},
        {Running, u"Copying"_s, 0.5, 0.5, 0, "50.0% | 0s | Phase: Copying (50.0%, 1.5 MB copied) | Remaining Time: 0s"},
        {Running, u"Copying"_s, 0.6, -1, 0,
         "60.0% | ... | Phase: Copying (60.0%, 1.5 MB copied) | Remaining Time: Calculating..."},
        {Stopping, u"Stopping"_s, 0.6, 90, 0, "60.0% | Stopping | Phase: Stopping | Remaining Time: N/A"},
        {Unknown, u"Unknown"_s, 0, 0, 0, "as | it was | Latest Backup: N/A | Next Backup: N/A "},
        {Running, u"ThinningPostBackup"_s, 0, 0, 0,
         "0.0% | Running | Phase: Cleaning Up (0.0%) | Remaining Time: Calculating..."},
    };
    for (const auto& row : cases) {
        report(row.state, row.phase, row.percent, row.remaining, row.bytes);
        EXPECT_EQ(texts(), row.texts);
        EXPECT_FALSE(menu().pauseIsEnabled);
        EXPECT_EQ(shown::idleIcon(moment), std::nullopt);
    }
    moment.run.startAccepted(0ms);
    moment.updateIsAvailable = true;
    EXPECT_EQ(texts(), "0.0% 🟢 | Starting | Phase: Starting | Remaining Time: N/A");
    moment.iconOnly = true;
    EXPECT_EQ(texts(), " |  | Phase: Starting | Remaining Time: N/A");
}

TEST_F(Shown, TheBackupNowItemOffersWhatAClickWouldDo)
{
    const struct {
        TMState state;
        bool stopAccepted, commandIsUnderWay;
        QString title;
        bool isEnabled, offersToStop;
    } cases[] = {
        {NotRunning, false, false, u"Back Up Now"_s, true, false},
        {NotRunning, false, true, u"Back Up Now"_s, false, false},
        {Unknown, false, false, u"Back Up Now"_s, true, false},
        {Running, false, false, u"Skip This Backup"_s, true, true},
        {Running, false, true, u"Skip This Backup"_s, false, true},
        {Running, true, false, u"Stopping..."_s, false, false},
        {Stopping, false, false, u"Stopping..."_s, false, false},
        {Starting, false, false, u"Skip This Backup"_s, true, true},
    };
    for (const auto& row : cases) {
        moment.run = {};
        report(row.state, u"Copying"_s, 0.5, 90);
        if (row.state == Starting)
            moment.run.startAccepted(0ms);
        if (row.stopAccepted)
            moment.run.stopAccepted();
        moment.commandIsUnderWay = row.commandIsUnderWay;
        EXPECT_EQ(menu().backupNow, row.title);
        EXPECT_EQ(menu().backupNowIsEnabled, row.isEnabled) << row.title.toStdString();
        EXPECT_EQ(menu().offersToStop, row.offersToStop);
        EXPECT_EQ(menu().disksAreEnabled, !row.commandIsUnderWay);
        EXPECT_EQ(shown::itemTitle(moment).value_or(shown::ItemTitle()).text == u"Stopping"_s,
                  row.title == u"Stopping..."_s);
    }
}

} // namespace quillon
