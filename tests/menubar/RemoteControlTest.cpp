#include "RemoteControl.h"

#include "ControllerFixture.h"
#include "Told.h"

#include <QDialog>
#include <QJsonArray>
#include <QJsonDocument>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Remote : public ControllerFixture {
protected:
    void launchWithRemote()
    {
        launch();
        remote = std::make_unique<RemoteControl>(
            RemoteControl::Services{runLoop, notifications, tmutil, *manager, *controller});
    }

    /// Lines that came in answer so far; refusals begin with "! ".
    std::string ask(const QString& words)
    {
        answers.clear();
        remote->take(ControlRequest::toLine(words.split(u' ')), [this](const QByteArray& line) {
            const auto answer = *ControlAnswer::fromLine(line);
            facts = answer.facts;
            answers.append((answer.done ? u""_s : u"! "_s) + answer.text);
            return listens;
        });
        return told();
    }
    std::string told() const { return answers.join(u" | "_s).toStdString(); }

    std::unique_ptr<RemoteControl> remote;
    QStringList answers;
    QJsonObject facts;
    bool listens = true;
};

TEST_F(Remote, StartsAndStopsWhereTheMenuOffersIt)
{
    launchWithRemote();
    EXPECT_EQ(ask(u"stop"_s), "! no backup runs");
    EXPECT_EQ(ask(u"retry"_s), "! no retry is pending");
    EXPECT_EQ(ask(u"backup"_s), "") << "it is told once the tool has answered";
    EXPECT_EQ(ask(u"backup"_s), "! another command is under way");
    after(1, "startbackup -r; 2, 0.0% Starting, Skip This Backup, next 21 12:00");
    EXPECT_EQ(told(), "! another command is under way | the backup starts");
    EXPECT_EQ(ask(u"backup"_s), "! a backup runs already");
    ask(u"backup --disk First"_s);
    wait(1);
    EXPECT_EQ(told(), "! a backup runs already");
    EXPECT_EQ(ask(u"pause 1h"_s), "! a schedule is not paused while a backup runs");
    spoilNext(Fault::NotUtf8, 0, u"status"_s);
    ask(u"stop"_s);
    wait(0.2);
    EXPECT_EQ(told(), "! what Time Machine does cannot be told");
    spoilNext(Fault::None, 3, u"stopbackup"_s);
    ask(u"stop"_s);
    EXPECT_EQ(ask(u"stop"_s), "! another command is under way");
    wait(0.5);
    EXPECT_EQ(told(), "! another command is under way | ! Time Machine has refused");
    ask(u"stop"_s);
    wait(0.5);
    EXPECT_EQ(told(), "the backup is being stopped");
    EXPECT_EQ(ask(u"stop"_s), "! the backup is being stopped already");
    EXPECT_EQ(ask(u"backup"_s), "! a backup is being stopped");
    wait(30);
    runElsewhere(0); // which nobody has seen yet
    ask(u"backup"_s);
    wait(1);
    EXPECT_EQ(told(), "! a backup runs already");
    machine.phases = {{u"Copying"_s, 1}}; // nor its end
    ask(u"stop"_s);
    wait(1);
    EXPECT_EQ(told(), "! no backup runs");
}

TEST_F(Remote, NamesADiskByNameOrIdentifierAndTellsOfARefusalWithoutAnAlert)
{
    machine.destinations = {{u"A"_s, u"Twin"_s}, {u"B"_s, u"Twin"_s}, {u"C"_s, u"My%20Disk"_s}};
    launchWithRemote();
    for (const auto& [words, answer] :
         {std::pair(u"backup --disk D"_s, "! no backup disk is called \"D\""),
          std::pair(u"backup --disk Twin"_s, "! 2 backup disks are called \"Twin\"; give the identifier")}) {
        ask(words);
        wait(1);
        EXPECT_EQ(told(), answer);
    }
    spoilNext(Fault::None, 1, u"destinationinfo"_s);
    ask(u"backup --disk C"_s);
    wait(1);
    EXPECT_EQ(told(), "! the backup disks cannot be told");
    spoilNext(Fault::None, 4, u"startbackup"_s);
    ask(u"backup"_s);
    wait(1);
    EXPECT_EQ(told(), "! Time Machine has refused with error code 4");
    EXPECT_EQ(facts[u"exitStatus"_s], 4);
    EXPECT_TRUE(alerts.presented.empty());
    seen();
    const auto take = [this](const QByteArray& line) {
        answers = {ControlAnswer::fromLine(line)->text};
        return true;
    };
    remote->take(ControlRequest::toLine({u"backup"_s, u"--disk"_s, u"My Disk"_s}), take);
    after(1, "startbackup -d C; 2, 0.0% Starting, Skip This Backup, next 21 12:00");
    EXPECT_EQ(told(), "the backup starts");
    remote->take("rubbish", take);
    EXPECT_EQ(told(), "the request cannot be understood");
}

TEST_F(Remote, PausesAndResumesAsTheMenuDoes)
{
    launchWithRemote();
    EXPECT_EQ(ask(u"settings"_s), "the settings are open");
    {
        QDialog alert;
        alert.setModal(true);
        alert.show();
        EXPECT_EQ(ask(u"settings"_s), "! an alert of Quillon waits for an answer");
    }
    EXPECT_EQ(ask(u"resume"_s), "! the schedule is not paused");
    EXPECT_EQ(ask(u"pause 1h"_s),
              "the schedule is paused until Sat 2026-11-21 11:00 +01:00; next backup Sat 2026-11-21 12:00 +01:00");
    EXPECT_TRUE(menu().pauseDurationItems().first()->isChecked());
    EXPECT_EQ(ask(u"pause --until 12:30"_s),
              "the schedule is paused until Sat 2026-11-21 12:30 +01:00; next backup Sun 2026-11-22 12:00 +01:00");
    EXPECT_EQ(facts[u"pausedUntil"_s], u"2026-11-21T12:30:00+01:00"_s);
    menu().pauseScheduleMenuItem->trigger(); // a tray that draws the menu may toggle its mark
    EXPECT_EQ(row(menu().pauseScheduleMenuItem), u"*Schedule Paused Until: Today, 12:30 >"_s);
    EXPECT_EQ(ask(u"resume"_s), "the schedule goes on; next backup Sat 2026-11-21 12:00 +01:00");
    EXPECT_EQ(ask(u"pause --until 2026-11-21"_s), "! that time has passed");
    EXPECT_EQ(ask(u"pause --until 2027-11-21"_s), "! a pause lasts four weeks at most");
    EXPECT_TRUE(ask(u"pause 4w"_s).starts_with("the schedule is paused until"));
    spoilNext(Fault::NotUtf8, 0, u"status"_s);
    wait(16);
    EXPECT_EQ(ask(u"pause 1h"_s), "! what Time Machine does cannot be told");
    manager->setIsScheduleEnabled(false);
    EXPECT_EQ(ask(u"pause 1h"_s), "! the schedule is off");
    EXPECT_EQ(ask(u"skip"_s), "! the schedule is off");
}

TEST(Told, APauseThatIsOverIsNoneAlsoWhileTheScheduleIsYetToGoOn)
{
    shown::Snapshot snapshot{.now = Date(1h)};
    for (const auto& [end, isTold] : {std::pair{Date(1h + 1s), true}, {Date(1h), false}, {Date(1h - 1s), false}}) {
        snapshot.pauseUntil = end;
        EXPECT_NE(told::scheduleFacts(snapshot)[u"pausedUntil"_s].isNull(), isTold);
    }
}

TEST(Told, WhatComesNextOrWhyNothingDoes)
{
    const PlayedPlace berlin;
    shown::Snapshot snapshot{.now = Date(0s)};
    EXPECT_EQ(told::statusLine(snapshot), u"1970-01-01T01:00:00+01:00  what Time Machine does cannot be told"_s);
    snapshot.isScheduleEnabled = false;
    EXPECT_EQ(told::nextStart(snapshot), u"the schedule is off"_s);
    snapshot.isScheduleEnabled = true;
    EXPECT_EQ(told::nextStart(snapshot), u"no backup is planned"_s);
    snapshot.nextScheduledBackupDate = Date(60s);
    EXPECT_EQ(told::nextStart(snapshot), u"next backup Thu 1970-01-01 01:01 +01:00"_s);
    snapshot.retryBackupDate = snapshot.nextScheduledBackupDate;
    snapshot.waitsForPower = true;
    EXPECT_EQ(told::nextStart(snapshot), u"a backup waits for mains power, retry Thu 1970-01-01 01:01 +01:00"_s);
    snapshot.waitsForPower = false;
    snapshot.run.take(TMStatus::notRunning(), BackupRun::Asked::ByPoll, snapshot.now);
    snapshot.pauseUntil = Date(60s);
    EXPECT_EQ(told::statusLine(snapshot), u"1970-01-01T01:00:00+01:00  paused until Thu 1970-01-01 01:01 +01:00, "
                                          "retry Thu 1970-01-01 01:01 +01:00"_s);
    snapshot.run.startAccepted(0ms);
    EXPECT_EQ(told::statusLine(snapshot), u"1970-01-01T01:00:00+01:00  starting"_s);
}

TEST_F(Remote, SkipsAndPostponesTheNextStartAloneAlsoAcrossSleepTravelAndARestart)
{
    launchWithRemote();
    EXPECT_EQ(ask(u"postpone 1d"_s),
              "! another backup starts on Sun 2026-11-22 12:00 +01:00, before that; skip the next one instead");
    EXPECT_EQ(ask(u"postpone 90m"_s),
              "the backup of Sat 2026-11-21 12:00 +01:00 is postponed; next backup Sat 2026-11-21 13:30 +01:00");
    EXPECT_EQ(facts[u"next"_s], u"2026-11-21T13:30:00+01:00"_s);
    after(0.1, "1, Next: 3h 29m, Back Up Now, next 21 13:30");
    sleepUntil(today(13));
    launchWithRemote();
    until(today(13, 29, 59));
    EXPECT_EQ(machine.starts(), 0);
    after(3, "startbackup -r; 2, 0.0% Starting, Skip This Backup, next 22 12:00");
    wait(120);
    EXPECT_EQ(ask(u"skip"_s),
              "the backup of Sun 2026-11-22 12:00 +01:00 is skipped; next backup Mon 2026-11-23 12:00 +01:00");
    after(0.1, "1, Next: 1d 22h, Back Up Now, next 23 12:00");
    ask(u"postpone 1h"_s);
    EXPECT_EQ(ask(u"skip"_s),
              "the backup of Mon 2026-11-23 13:00 +01:00 is skipped; next backup Tue 2026-11-24 12:00 +01:00");
    const ScopedEnvironment travel("TZ", "America/New_York");
    sleepUntil(local(2026, 11, 22, 12, 5));
    runLoop.stepWallClock(-2h);
    wait(20);
    expect("1, Next: 2d 1h, Back Up Now, next 24 12:00");
    sleepUntil(local(2026, 11, 24, 11, 59));
    EXPECT_EQ(machine.starts(), 1);
    wait(65);
    EXPECT_EQ(machine.starts(), 2);
    wait(120);
    for (int skipped = 0; skipped < nextbackup::mostChanges; ++skipped)
        EXPECT_FALSE(ask(u"skip"_s).starts_with("!"));
    for (const QString& request : {u"skip"_s, u"postpone 1h"_s})
        EXPECT_EQ(ask(request), "! 20 starts are skipped or postponed already; pause the schedule instead");
}

TEST_F(Remote, MakesOrDropsAPendingRetryWhichIsNoStartToSkip)
{
    letRunsFail();
    launchWithRemote();
    runElsewhere(60);
    expect("5, Retry: 5m, Back Up Now, retry 21 10:06");
    EXPECT_EQ(ask(u"skip"_s), "! the next start is a retry, which skip-retry skips");
    EXPECT_EQ(ask(u"skip-retry"_s), "the retry is skipped; next backup Sat 2026-11-21 12:00 +01:00");
    runElsewhere(60);
    ask(u"retry"_s);
    after(1, "startbackup -r; 2, 0.2% 19s, Skip This Backup, next 21 12:00");
    EXPECT_EQ(told(), "the backup starts");
}

TEST_F(Remote, ListsAndEditsTheRulesAsFarAsThePanelDoes)
{
    launchWithRemote();
    EXPECT_EQ(ask(u"rules"_s), "1  every-day 12:00\nnext backup Sat 2026-11-21 12:00 +01:00");
    manager->setRetryBackupDate(today(12));
    EXPECT_EQ(ask(u"rules add saturday 18:30"_s),
              "1  every-day 12:00\n2  Saturday 18:30\nretry Sat 2026-11-21 12:00 +01:00");
    EXPECT_EQ(facts[u"rules"_s].toArray()[1],
              (QJsonObject{{u"number"_s, 2}, {u"day"_s, u"Saturday"_s}, {u"time"_s, u"18:30"_s}}));
    ask(u"skip-retry"_s);
    wait(1);
    EXPECT_EQ(ask(u"rules remove 1"_s), "1  Saturday 18:30\nnext backup Sat 2026-11-21 18:30 +01:00");
    after(1, "1, Next: 8h 29m, Back Up Now, next 21 18:30");
    EXPECT_EQ(ask(u"rules remove 2"_s), "! there is no rule 2");
    EXPECT_EQ(ask(u"rules remove 1"_s), "there are no rules; no backup is planned");
    EXPECT_EQ(ask(u"skip"_s), "! no backup is planned");
    for (int rule = 0; rule < 5; ++rule)
        ask(u"rules add 8 9:00"_s);
    EXPECT_EQ(ask(u"rules add 8 9:00"_s), "! there are 5 rules, and there cannot be more");
}

TEST_F(Remote, TellsWhoWatchesOfEveryChangeUntilNobodyListens)
{
    launchWithRemote();
    EXPECT_EQ(ask(u"status --watch"_s), "2026-11-21T10:00:01+01:00  next backup Sat 2026-11-21 12:00 +01:00");
    wait(60);
    EXPECT_EQ(answers.size(), 1);
    runElsewhere(30);
    EXPECT_EQ(QJsonDocument(facts).toJson(QJsonDocument::Compact).toStdString(),
              R"({"bytesCopied":1920833,"destinationID":"A","done":true,"failed":false,"isRetry":false,)"
              R"("next":"2026-11-21T12:00:00+01:00","pausedUntil":null,"percent":0.38416698575019836,)"
              R"("phase":"Copying","state":1,)"
              R"("text":"2026-11-21T10:01:30+01:00  running, Copying, 38.4%, 37 s remaining",)"
              R"("timeRemaining":36.95000076293945,"waitsForPower":false})");
    listens = false;
    wait(15);
    const auto lines = answers.size();
    wait(60);
    EXPECT_EQ(answers.size(), lines);
}

} // namespace quillon
