#include "TMUtil.h"

#include "BackupPhase.h"
#include "FakeServices.h"
#include "LocalizedString.h"
#include "ScopedEnvironment.h"
#include "SetupAdvice.h"
#include "VirtualLauncher.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

class Tmutil : public testing::Test {
protected:
    void play(const QByteArray& script)
    {
        tmutil.reset();
        queue.reset();
        launcher = std::make_unique<ScriptedLauncher>(runLoop, TmutilScript::fromJson(script));
        queue = std::make_unique<TMUtilQueue>(*launcher, runLoop, u"tool"_s);
        tmutil = std::make_unique<TMUtil>(*queue, *launcher, runLoop, workspace, alerts);
    }

    StatusHandler noteStatus(const QString& who)
    {
        return [this, who](const TMStatus& status) { log.append(who + u':' + QString::number(int(status.state))); };
    }

    VirtualRunLoop runLoop{Date(std::chrono::hours(24 * 20000))};
    FakeWorkspace workspace;
    FakeAlerts alerts;
    std::unique_ptr<ScriptedLauncher> launcher;
    std::unique_ptr<TMUtilQueue> queue;
    std::unique_ptr<TMUtil> tmutil;
    QStringList log;
};

TEST_F(Tmutil, GivesTheToolItsWordsAndOneVariable)
{
    play(R"([{"expect":["startbackup","-d","disk"]},{"expect":["startbackup","-r"]},{"expect":["startbackup"]},
             {"expect":["stopbackup"]},{"expect":["destinationinfo","-X"]},{"expect":["status"]}])");
    tmutil->startBackupOnDiskWithIdentifier(u"disk"_s, true, {});
    tmutil->startBackupOnDiskWithIdentifier({}, true, {});
    tmutil->startBackupOnDiskWithIdentifier(u""_s, false, {});
    tmutil->stopBackupWithCompletionHandler({});
    tmutil->getBackupDestinationsWithCompletionHandler({});
    tmutil->getStatusWithCompletionHandler({});
    runLoop.advance(Seconds(1));
    for (const auto& request : launcher->launched()) {
        EXPECT_EQ(request.executable, u"tool"_s);
        EXPECT_EQ(request.environment, QStringList(u"command="_s + request.arguments.first()));
    }
}

TEST_F(Tmutil, ReportsTheExitStatusFirstAndThenWhatTheParserMakesOfTheOutput)
{
    play(R"([{"expect":["status"],"status":1},{"expect":["status"],"output":"{Running=0;}","status":1},
             {"expect":["destinationinfo","-X"],"status":3},{"expect":["startbackup"],"status":30},
             {"expect":["startbackup"]},{"expect":["stopbackup"],"status":1},{"expect":["stopbackup"]}])");
    tmutil->getStatusWithCompletionHandler(noteStatus(u"empty"_s));
    tmutil->getStatusWithCompletionHandler(noteStatus(u"full"_s));
    tmutil->getBackupDestinationsWithCompletionHandler([this](bool success, const QList<BackupDestination>& list) {
        log.append(u"disks:%1,%2"_s.arg(success).arg(list.size()));
    });
    for (int i = 0; i < 2; ++i) {
        tmutil->startBackupOnDiskWithIdentifier({}, false, [this](std::int32_t status, bool success) {
            log.append(u"start:%1,%2"_s.arg(status).arg(success));
        });
    }
    for (int i = 0; i < 2; ++i) {
        tmutil->stopBackupWithCompletionHandler(
            [this](bool failed, bool success) { log.append(u"stop:%1,%2"_s.arg(failed).arg(success)); });
    }
    runLoop.advance(Seconds(1));
    EXPECT_EQ(log, (QStringList{u"empty:-1"_s, u"empty:-1"_s, u"full:-1"_s, u"full:0"_s, u"disks:1,0"_s, u"disks:1,0"_s,
                                u"start:30,0"_s, u"start:0,1"_s, u"stop:1,0"_s, u"stop:0,1"_s}));
}

TEST_F(Tmutil, NoWaitingRequestTakesAnothersReport)
{
    play(R"([{"expect":["status"],"output":"{Running=0;}","delay":5},
             {"expect":["status"],"output":"{Running=1;BackupPhase=Copying;}"}])");
    tmutil->getStatusWithCompletionHandler(noteStatus(u"first"_s));
    TMUtil other(*queue, *launcher, runLoop, workspace, alerts);
    other.getStatusWithCompletionHandler(noteStatus(u"second"_s));
    runLoop.advance(Seconds(6));
    EXPECT_EQ(log, (QStringList{u"first:0"_s, u"second:1"_s}));
}

TEST_F(Tmutil, WhatAnAnswerLeadsToRunsAheadOfWhatWaits)
{
    play(R"([{"expect":["status"],"output":"{Running=0;}","delay":1},{"expect":["startbackup"]},
             {"expect":["stopbackup"]},{"expect":["destinationinfo","-X"]}])");
    tmutil->getStatusWithCompletionHandler([this](const TMStatus&) {
        tmutil->startBackupOnDiskWithIdentifier({}, false, {});
        runLoop.enqueue([this] { tmutil->stopBackupWithCompletionHandler({}); });
    });
    tmutil->getBackupDestinationsWithCompletionHandler({});
    runLoop.advance(Seconds(2));
}

TEST_F(Tmutil, AnyWayInWhichTheToolFailsIsAReportAndTheQueueMovesOn)
{
    play(R"([{"expect":["status"],"output":"{Running=0;}","fault":"refused"},
             {"expect":["status"],"output":"{Running=0;}","fault":"crash"},
             {"expect":["status"],"output":"{Running=0;}","fault":"endless"},
             {"expect":["status"],"output":"{Running=0;}","fault":"notUtf8"},
             {"expect":["status"],"output":"{Running=0;}","fault":"hang"},
             {"expect":["startbackup"],"fault":"hang"},
             {"expect":["status"],"output":"{Running=0;}"}])");
    for (const auto* who : {"refused", "crash", "endless", "notUtf8", "hang"})
        tmutil->getStatusWithCompletionHandler(noteStatus(QString::fromLatin1(who)));
    tmutil->startBackupOnDiskWithIdentifier({}, false, [this](std::int32_t status, bool success) {
        log.append(u"start:%1,%2"_s.arg(status).arg(success));
    });
    tmutil->getStatusWithCompletionHandler(noteStatus(u"last"_s));
    runLoop.advance(Seconds(61));
    EXPECT_EQ(log.size(), 9) << "two reports for a failed exit, one for an output that cannot be read";
    EXPECT_EQ(log.last(), u"hang:-1"_s);
    runLoop.stepWallClock(-Seconds(3600));
    runLoop.advance(Seconds(121));
    EXPECT_EQ(log.mid(9), (QStringList{u"start:9,0"_s, u"last:0"_s}));
    EXPECT_EQ(launcher->liveChildren(), 0);
}

TEST_F(Tmutil, QuittingEndsWhatReadsAndLeavesAStartToFinish)
{
    play(R"([{"expect":["status"],"fault":"hang"}])");
    tmutil->getStatusWithCompletionHandler(noteStatus(u"gone"_s));
    runLoop.settle();
    queue->shutDown();
    tmutil->getStatusWithCompletionHandler(noteStatus(u"late"_s));
    EXPECT_EQ(launcher->liveChildren(), 0);
    play(R"([{"expect":["startbackup"],"delay":5}])");
    tmutil->startBackupOnDiskWithIdentifier({}, false, {});
    queue->shutDown();
    EXPECT_EQ(launcher->liveChildren(), 1);
    runLoop.advance(Seconds(6));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(Tmutil, SettingsAreALinkFromVersion13OnAndAScriptBefore)
{
    const QByteArray script = R"({"expect":["-e","tell Application \"System Preferences\"","-e","activate","-e",
        "set the current pane to pane id \"com.apple.prefs.backup\"","-e","end tell"],"status":1,"delay":)";
    play('[' + script + "600}," + script + "1}]");
    tmutil->openTimeMachineSettings(u"Quillon"_s);
    EXPECT_EQ(workspace.opened.size(), 1);
    const ScopedEnvironment monterey("QUILLON_SYSTEM_VERSION", "12.6");
    tmutil->openTimeMachineSettings(u"Quillon"_s);
    runLoop.advance(Seconds(590));
    EXPECT_EQ(launcher->liveChildren(), 1) << "the system may still be asking the user";
    EXPECT_EQ(launcher->launched().first().executable, u"/usr/bin/osascript"_s);
    EXPECT_EQ(launcher->launched().first().environment, QStringList(u"command=OpenTimeMachinePrefs"_s));
    tmutil->openTimeMachineSettings(u"Quillon"_s);
    runLoop.advance(Seconds(2));
    EXPECT_EQ(launcher->launched().size(), 2) << "another request is another script";
    ASSERT_EQ(alerts.presented.size(), 1U);
    const auto& [alert, answer] = alerts.presented.front();
    EXPECT_EQ(alert.style, AlertStyle::Critical);
    ASSERT_EQ(alert.buttons.size(), 2);
    const auto button = alert.informativeText.indexOf(alert.buttons[1]);
    EXPECT_GE(button, 0) << alert.informativeText.toStdString();
    EXPECT_GT(alert.informativeText.lastIndexOf(u"Quillon"_s), button);
    answer(alertFirstButtonReturn);
    EXPECT_EQ(workspace.opened.size(), 1);
    answer(alertSecondButtonReturn);
    EXPECT_EQ(workspace.opened.last().toString(),
              u"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"_s);
}

TEST(BackupPhases, FoldRawWordsIntoPhrasesAndLeaveNewOnesAlone)
{
    using backupphase::localizationKey;
    using backupphase::phrase;
    EXPECT_EQ(phrase({}), u"N/A"_s);
    EXPECT_STREQ(localizationKey(phrase({})), "notAvailableAbbreviation");
    EXPECT_EQ(phrase(u"MountingDiskImage"_s), phrase(u"MountingBackupVol"_s));
    EXPECT_STREQ(localizationKey(phrase(u"HealthCheckFsck"_s)), "tmPhaseHealthCheck");
    EXPECT_STREQ(localizationKey(phrase(u"Not Running"_s)), "tmPhaseDefault");
    for (const auto& unknown : {u"copying"_s, u"NotRunning"_s, u"LazyThinning"_s}) {
        EXPECT_EQ(phrase(unknown), unknown);
        EXPECT_EQ(localizationKey(phrase(unknown)), nullptr);
    }
}

TEST_F(Tmutil, TheAdviceNamesTheDisksAndSaysSoOnlyWhenItIsKnownThatThereIsNone)
{
    const QString list = u"<plist><dict><key>Destinations</key><array>%1</array></dict></plist>"_s;
    const QString disk = u"<dict><key>ID</key><string>%1</string><key>Name</key><string>%1%20Disk</string></dict>"_s;
    const struct {
        QString answer;
        QString text;
        bool diskIsMissing;
    } cases[] = {
        {u"\"output\":\"%1\""_s.arg(list.arg(disk.arg(u"A"_s) + disk.arg(u"B"_s))),
         localizedString("setupDisksMessage").arg(u"A Disk\nB Disk"_s), false},
        {u"\"output\":\"%1\""_s.arg(list.arg(QString())), localizedString("setupNoDiskMessage"), true},
        {u"\"output\":\"<plist><dict>\""_s, localizedString("setupUnknownDisksMessage"), false},
        {u"\"status\":78"_s, localizedString("setupUnknownDisksMessage"), false},
        {u"\"fault\":\"hang\""_s, localizedString("setupUnknownDisksMessage"), false},
    };
    for (const auto& [answer, text, diskIsMissing] : cases) {
        play(u"[{\"expect\":[\"destinationinfo\",\"-X\"],%1}]"_s.arg(answer).toUtf8());
        QList<SetupAdvice> given;
        giveSetupAdvice(*tmutil, runLoop, [&given](const SetupAdvice& advice) { given.append(advice); });
        runLoop.advance(Seconds(61));
        ASSERT_EQ(given.size(), 1) << answer.toStdString();
        EXPECT_EQ(given.first().text, text) << answer.toStdString();
        EXPECT_EQ(given.first().diskIsMissing, diskIsMissing) << answer.toStdString();
        EXPECT_EQ(given.first().style, AlertStyle::Informational);
    }
}

} // namespace quillon
