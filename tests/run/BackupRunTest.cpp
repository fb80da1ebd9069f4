#include "BackupRun.h"

#include <QList>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Asked = BackupRun::Asked;
using Pace = BackupRun::Pace;

namespace {

constexpr Date start{1'800'000'000s};
constexpr Date later = start + 50s;

TMStatus report(TMState state, const QString& phase, double percent = 0, double remaining = 0, std::int64_t bytes = 0)
{
    return {false, state, phase, percent, remaining, bytes, u"A"_s};
}

const TMStatus idle = TMStatus::notRunning();
const TMStatus copying = report(TMState::Running, u"Copying"_s, 0.8, 100, 1000);

/// A run whose beginning has been acted on.
BackupRun begun()
{
    BackupRun run;
    run.take(copying, Asked::ByPoll, start);
    EXPECT_EQ(run.step(), BackupRun::Step{.began = true});
    return run;
}

} // namespace

TEST(BackupRun, TakesTheReportedStateAndHoldsAnAcceptedStartUntilItShows)
{
    const struct {
        std::optional<TMState> before; ///< nothing for a start that was accepted
        TMState reported;
        Asked asked;
        TMState after;
    } cases[] = {
        {TMState::Unknown, TMState::NotRunning, Asked::ByPoll, TMState::NotRunning},
        {TMState::Running, TMState::NotRunning, Asked::ByPoll, TMState::NotRunning},
        {TMState::Running, TMState::Unknown, Asked::ByPoll, TMState::Unknown},
        {TMState::NotRunning, TMState::Stopping, Asked::ByPoll, TMState::Stopping},
        {{}, TMState::NotRunning, Asked::ByPoll, TMState::Starting},
        {{}, TMState::NotRunning, Asked::ByCommand, TMState::NotRunning},
        {{}, TMState::Running, Asked::ByPoll, TMState::Running},
        {{}, TMState::Stopping, Asked::ByPoll, TMState::Stopping},
        {{}, TMState::Unknown, Asked::ByPoll, TMState::Unknown},
    };
    for (const auto& row : cases) {
        BackupRun run;
        if (row.before)
            run.take(report(*row.before, u"Before"_s), Asked::ByPoll, start);
        else
            run.startAccepted(0ms);
        run.take(report(row.reported, u"Reported"_s), row.asked, start);
        EXPECT_EQ(run.tmState(), row.after) << int(row.reported);
        EXPECT_EQ(run.tmPhase(), row.after == TMState::Starting ? u"Starting"_s : u"Reported"_s);
        EXPECT_EQ(run.isActive(), int(row.after) > 0);
        EXPECT_EQ(run.isReported(), row.after == TMState::Running || row.after == TMState::Stopping);
    }
}

TEST(BackupRun, BeginsOnceAndEndsAsItsReportsSay)
{
    const TMStatus thinning = report(TMState::Running, u"ThinningPostBackup"_s, 0, 0, 2000);
    const TMStatus finishing = report(TMState::Running, u"Finishing"_s);
    const TMStatus stopping = report(TMState::Stopping, u"Stopping"_s);
    const struct {
        QList<TMStatus> reports; ///< one a second
        bool stopAccepted;
        std::optional<Date> completed;
        bool failed;
    } cases[] = {
        {{idle}, false, {}, true},
        {{TMStatus::failure()}, false, {}, true},
        {{idle}, true, {}, false},
        {{thinning, idle}, false, later, false},
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
        ASSERT_TRUE(step.end);
        EXPECT_EQ(step.end->completed, row.completed);
        EXPECT_EQ(step.end->failed(), row.failed);
        EXPECT_EQ(step.end->stoppedByUser, row.stopAccepted);
        EXPECT_EQ(step.end->disk, u"A"_s);
        EXPECT_EQ(step.end->bytes, row.reports.first() == thinning ? 2000 : 1000);
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

TEST(BackupRun, AStopThatComesTooLateIsForgotten)
{
    BackupRun run;
    run.take(idle, Asked::ByPoll, start);
    run.stopAccepted();
    run.step();
    EXPECT_FALSE(run.stopBackupConfirmed());
}

TEST(BackupRun, IsAskedForAtThePaceThatItCallsFor)
{
    BackupRun run;
    EXPECT_EQ(run.pace(), Pace::Idle);
    run.startAccepted(10s);
    run.take(idle, Asked::ByPoll, start);
    run.step();
    run.tick(70s);
    EXPECT_EQ(run.pace(), Pace::Starting);
    run.tick(70s + 1ms);
    EXPECT_EQ(run.pace(), Pace::Running) << "nobody looks closely for ever";
    run.take(TMStatus::failure(), Asked::ByPoll, start);
    run.step();
    EXPECT_EQ(run.pace(), Pace::Idle);
    run = begun();
    EXPECT_EQ(run.pace(), Pace::Running);
    run.tick(24h);
    run.take(report(TMState::Stopping, u"Stopping"_s), Asked::ByPoll, start);
    run.step();
    EXPECT_EQ(run.pace(), Pace::Running);
    run.take(idle, Asked::ByPoll, start);
    run.step();
    EXPECT_EQ(run.pace(), Pace::Idle);
}

TEST(BackupRun, ProgressIsCarriedOnAfterCopyingAndFallsBackWhenTheEstimateHasRunOut)
{
    const struct {
        std::chrono::seconds after;
        double percentage, remaining;
    } cases[] = {{50s, 0.9, 50}, {100s, 1.0, 0}, {103s, 0.8, 0}};
    BackupRun run = begun();
    const TMStatus finishing = report(TMState::Running, u"Finishing"_s);
    run.take(finishing, Asked::ByPoll, start);
    for (const auto& row : cases) {
        run.take(finishing, Asked::ByPoll, start + row.after);
        EXPECT_DOUBLE_EQ(run.progress().percentage(), row.percentage) << row.after.count();
        EXPECT_DOUBLE_EQ(run.progress().timeRemaining(), row.remaining) << row.after.count();
    }
}

TEST(BackupRun, ALowerReportNeverLowersWhatIsShown)
{
    BackupRun run = begun();
    run.take(report(TMState::Running, u"Copying"_s, 0.3, 10, 500), Asked::ByPoll, later);
    EXPECT_DOUBLE_EQ(run.progress().percentage(), 0.8);
    EXPECT_EQ(run.progress().timeRemaining(), 10);
    EXPECT_EQ(run.progress().bytesCopied(), 1000);
    run.take({false, TMState::Running, u"Copying"_s, 0, 77, 0, {}}, Asked::ByPoll, later);
    EXPECT_EQ(run.progress().timeRemaining(), 10) << "an answer without an estimate leaves the one that was there";
    EXPECT_EQ(run.activeBackupDiskIdentifier(), u"A"_s);
    BackupRun unestimated;
    unestimated.take(report(TMState::Running, u"Copying"_s, 0.5, 0), Asked::ByPoll, start);
    unestimated.take(report(TMState::Running, u"Finishing"_s), Asked::ByPoll, later);
    EXPECT_DOUBLE_EQ(unestimated.progress().percentage(), 0.5) << "without an estimate nothing is carried on";
}

} // namespace quillon
