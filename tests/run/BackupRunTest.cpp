#include "BackupRun.h"

#include <QList>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Asked = BackupRun::Asked;
using Pace = BackupRun::Pace;
using enum TMState;

namespace {

constexpr Date start{1'800'000'000s};
constexpr Date later = start + 50s;

TMStatus report(TMState state, const QString& phase, double percent = 0, double remaining = 0, std::int64_t bytes = 0)
{
    return {false, state, phase, percent, remaining, bytes, u"A"_s};
}

const TMStatus idle = TMStatus::notRunning();
const TMStatus stopping = report(Stopping, u"Stopping"_s);
const TMStatus finishing = report(Running, u"Finishing"_s);

/// A run whose beginning has been acted on.
BackupRun begun(double percent = 0.8, double remaining = 100)
{
    BackupRun run;
    run.take(report(Running, u"Copying"_s, percent, remaining, 1000), Asked::ByPoll, start);
    EXPECT_EQ(run.step(), BackupRun::Step{.began = true});
    return run;
}

} // namespace

TEST(BackupRun, TakesTheReportedStateAndHoldsAnAcceptedStartUntilItShows)
{
    const struct {
        TMState before; ///< Starting for a start that was accepted
        TMState reported;
        Asked asked;
        TMState after;
    } cases[] = {
        {Unknown, NotRunning, Asked::ByPoll, NotRunning},     {Running, NotRunning, Asked::ByPoll, NotRunning},
        {Running, Unknown, Asked::ByPoll, Unknown},           {NotRunning, Stopping, Asked::ByPoll, Stopping},
        {Starting, NotRunning, Asked::ByPoll, Starting},      {Starting, Running, Asked::ByPoll, Running},
        {Starting, NotRunning, Asked::ByCommand, NotRunning}, {Starting, Stopping, Asked::ByPoll, Stopping},
        {Starting, Unknown, Asked::ByPoll, Unknown},
    };
    for (const auto& row : cases) {
        BackupRun run;
        run.take(report(row.before, u"Before"_s), Asked::ByPoll, start);
        if (row.before == Starting)
            run.startAccepted(0ms);
        run.take(report(row.reported, u"Reported"_s), row.asked, start);
        EXPECT_EQ(run.tmState(), row.after) << int(row.reported);
        EXPECT_EQ(run.tmPhase(), row.after == Starting ? u"Starting"_s : u"Reported"_s);
        EXPECT_EQ(run.isActive(), int(row.after) > 0);
        EXPECT_EQ(run.isReported(), row.after == Running || row.after == Stopping);
    }
}

TEST(BackupRun, BeginsOnceAndEndsAsItsReportsSay)
{
    const TMStatus thinning = report(Running, u"ThinningPostBackup"_s, 0, 0, 2000);
    const struct {
        QList<TMStatus> reports; ///< one a second
        bool stopAccepted;
        std::optional<Date> completed;
        bool failed;
    } cases[] = {
        {{idle}, false, {}, true},
        {{TMStatus::failure()}, false, {}, true},
        {{idle}, true, {}, false},
        {{thinning, thinning, idle}, false, later, false},
        {{finishing, finishing, idle}, false, later + 1s, false},
        {{thinning, finishing, idle}, true, later + 1s, false},
        {{finishing, stopping, idle}, false, {}, true},
        {{finishing, stopping, idle}, true, {}, false},
    };
    for (const auto& row : cases) {
        BackupRun run = begun();
        if (row.stopAccepted)
            run.stopAccepted();
        Date now = later;
        BackupRun::Step step;
        for (const auto& status : row.reports) {
            EXPECT_EQ(step, BackupRun::Step()) << "it goes on";
            run.take(status, Asked::ByPoll, now);
            step = run.step();
            now += 1s;
        }
        const BackupRun::End end{row.completed, row.stopAccepted, u"A"_s,
                                 row.reports.first() == thinning ? 2000 : 1000};
        EXPECT_EQ(step, (BackupRun::Step{false, end}));
        EXPECT_EQ(end.failed(), row.failed);
        EXPECT_EQ(run.uiState(), run.tmState());
        EXPECT_EQ(run.backupCompleteDate(), row.completed) << "it stays until the next run";
        EXPECT_FALSE(run.stopBackupConfirmed());
        EXPECT_FALSE(run.activeBackupDiskIdentifier());
        EXPECT_EQ(run.progress().percentage(), 0);
        EXPECT_EQ(run.step(), BackupRun::Step()) << "it has ended once";
        run.take(finishing, Asked::ByPoll, now);
        EXPECT_TRUE(run.step().began);
        EXPECT_FALSE(run.backupCompleteDate()) << "first seen in its last phase";
    }
}

TEST(BackupRun, IsAskedForAtThePaceThatItCallsFor)
{
    BackupRun run;
    const auto take = [&run](const TMStatus& status) {
        run.take(status, Asked::ByPoll, start);
        run.step();
    };
    EXPECT_EQ(run.pace(), Pace::Idle);
    run.stopAccepted();
    take(idle);
    EXPECT_FALSE(run.stopBackupConfirmed()) << "a stop that comes too late is forgotten";
    run.startAccepted(10s);
    take(idle);
    EXPECT_EQ(run.previousTmPhase(), u"Starting"_s);
    run.tick(70s);
    EXPECT_EQ(run.pace(), Pace::Starting);
    run.tick(70s + 1ms);
    EXPECT_EQ(run.pace(), Pace::Running) << "nobody looks closely for ever";
    take(TMStatus::failure());
    EXPECT_EQ(run.pace(), Pace::Idle);
    run = begun();
    run.tick(24h);
    take(stopping);
    EXPECT_EQ(run.pace(), Pace::Running);
    take(idle);
    EXPECT_EQ(run.pace(), Pace::Idle);
}

TEST(BackupRun, ProgressNeverGoesBackAndIsCarriedOnAfterCopyingWhileThereIsAnEstimate)
{
    const struct {
        BackupRun run;
        struct {
            std::chrono::seconds after;
            TMStatus report;
            double percentage, remaining;
        } steps[4];
    } cases[] = {
        {begun(),
         {{1s, report(Running, u"Copying"_s, 0.3, 10, 500), 0.8, 10},
          {2s, {false, Running, u"Copying"_s, 0, 77, 0, {}}, 0.8, 10}, // no estimate leaves the one that was there
          {3s, report(Running, u"Copying"_s, 0.85, 10), 0.85, 10},
          {4s, report(Running, u"Copying"_s, 0.8, 20), 0.85, 20}}},
        {begun(),
         {{0s, finishing, 0.8, 100},
          {50s, finishing, 0.9, 50},
          {100s, finishing, 1.0, 0},
          {103s, finishing, 0.8, 0}}}, // the estimate has run out
        {begun(),
         {{0s, finishing, 0.8, 100},
          {50s, finishing, 0.9, 50},
          {60s, report(Running, u"Finishing"_s, 0.9, 30), 0.8, 30}, // a percentage that tells nothing new
          {}}},
        {begun(0.8, 1), {{0s, finishing, 0.8, 1}, {1s, finishing, 1.0, 0}, {}, {}}},
        {begun(), {{0s, finishing, 0.8, 100}, {150s, finishing, 1.0, 0}, {}, {}}}, // nobody could ask for long
        {begun(0.5, 0), {{0s, finishing, 0.5, 0}, {50s, finishing, 0.5, 0}, {60s, finishing, 0.5, 0}, {}}},
        {begun(0, 60), {{0s, finishing, 0, 60}, {50s, finishing, 0, 60}, {70s, finishing, 0, 60}, {}}},
    };
    for (auto [run, steps] : cases) {
        for (const auto& [after, status, percentage, remaining] : steps) {
            if (status.phase.isEmpty())
                continue;
            run.take(status, Asked::ByPoll, start + after);
            EXPECT_DOUBLE_EQ(run.progress().percentage(), percentage) << after.count();
            EXPECT_DOUBLE_EQ(run.progress().timeRemaining(), remaining) << after.count();
            EXPECT_EQ(run.progress().bytesCopied(), 1000);
            EXPECT_EQ(run.activeBackupDiskIdentifier(), u"A"_s);
        }
    }
}

} // namespace quillon
