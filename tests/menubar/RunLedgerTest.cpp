#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;

/// What the ledger says of a Saturday with one backup a day at twelve. What a schedule lives through is in the soak.
class RunLedgerOf : public ControllerFixture {
protected:
    RunLedgerOf() { launch(); }

    /// What is new since the last look, the oldest first: when, why, what became of it, when it began and ended, where
    /// to, how much, and what was planned then.
    void expectNew(const char* expected, int line = __builtin_LINE())
    {
        QStringList lines;
        const auto entries = ledger.read({}).value();
        for (const LedgerEntry& entry : entries) {
            QStringList words{time(entry.date), nameOf(entry.cause), nameOf(entry.outcome), nameOf(entry.reason)};
            if (entry.exitStatus)
                words.append(QString::number(*entry.exitStatus));
            words.append({entry.detail, time(entry.began), time(entry.ended), entry.diskName,
                          entry.bytes ? QString::number(*entry.bytes) : QString(),
                          entry.nextIsRetry ? u"retry"_s : u""_s, time(entry.next)});
            words.removeAll(QString());
            lines.prepend(words.join(u' '));
        }
        lines.removeIf([this](const QString& line) { return told_.contains(line); });
        told_ += lines;
        EXPECT_EQ(lines.join(u'\n').toStdString(), expected) << "line " << line;
    }
    static QString time(std::optional<Date> date)
    {
        return date ? DateFormatter::string(*date, u"H:mm:ss"_s) : QString();
    }

private:
    QStringList told_;
};

TEST_F(RunLedgerOf, CompletedStoppedFailedAndRefusedStartsTellAllThatIsKnown)
{
    click();
    wait(10);
    expectNew("10:00:01 user running 10:00:01 First 12:00:00");
    wait(120);
    expectNew("10:00:01 user completed 10:00:01 10:01:25 First 4758333 12:00:00");

    controller->backupNowSubMenuItemClicked(u"B"_s);
    wait(30);
    click();
    wait(30);
    expectNew("10:02:11 user stopped 10:02:11 10:02:47 Second 2004167 12:00:00");

    letRunsFail();
    click();
    wait(60);
    expectNew("10:03:11 user failed incomplete The disk is full. 10:03:11 10:03:32 First 4525000 retry 10:09:00");

    spoilNext(Fault::None, 4, u"startbackup"_s);
    controller->backupNowSubMenuItemClicked(u"B"_s);
    wait(1);
    expectNew("10:04:11 user refused toolRefused 4 Second retry 10:09:00");
}

TEST_F(RunLedgerOf, RunsElsewhereAreSeenAndStartsWithoutARunAreNot)
{
    runElsewhere(20);
    machine.stop();
    wait(20);
    expectNew("10:00:15 elsewhere failed stoppedElsewhere 10:00:15 10:00:27 First 1166667 retry 10:06:00");

    machine.phases = {{u"Finishing"_s, 0.05}}; // too short to be seen
    click();
    wait(1);
    expectNew("10:00:41 user running retry 10:06:00");
    click();
    wait(2);
    expectNew("10:00:41 user unseen neverReported retry 10:06:00");
}

TEST_F(RunLedgerOf, AStatusThatCannotBeReadEndsNoRunForGood)
{
    machine.phases.first().seconds = 60;
    click();
    wait(20);
    spoilNext(Fault::Refused);
    wait(4);
    expectNew("10:00:01 user failed unreadable 10:00:01 10:00:22 First retry 10:06:00");
    wait(200);
    expectNew("10:00:01 user completed 10:00:01 10:02:19 First 4766667 12:00:00");
}

TEST_F(RunLedgerOf, ARunThatAnEarlierLaunchHasSeenIsFollowedOrGivenUp)
{
    click();
    wait(20);
    launch();
    expectNew("10:00:01 user running 10:00:01 First 12:00:00");
    wait(120);
    expectNew("10:00:01 user completed 10:00:01 10:01:27 First 4916667 12:00:00");
    click();
    wait(20);
    controller.reset();
    wait(120);
    launch();
    expectNew("10:02:22 user unseen notFollowed 10:02:22 Second 12:00:00");
}

TEST_F(RunLedgerOf, APauseAndASleepPassEveryStartInThem)
{
    setRules({{0, 11 * 3600LL}, {0, 12 * 3600LL}, {0, 13 * 3600LL}, {0, 15 * 3600LL}});
    launch();
    defaults.stored[settingskeys::lastBackupDate] = QDateTime::fromMSecsSinceEpoch(1);
    controller->pauseForClicked(3600);
    until(today(11, 0, 30));
    expectNew("11:00:00 schedule skipped paused 12:00:00");
    sleepUntil(today(13, 30));
    expectNew("12:00:00 schedule missed asleep retry 13:36:00\n"
              "13:00:00 schedule missed asleep retry 13:36:00");
    wait(600);
    expectNew("13:36:00 retry completed 13:36:00 13:37:24 First 4758333 15:00:00");
}

} // namespace quillon
