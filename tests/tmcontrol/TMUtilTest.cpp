#include "TMUtil.h"

#include "FakeServices.h"
#include "LocalizedString.h"
#include "ScopedEnvironment.h"
#include "SetupAdvice.h"
#include "TMReports.h"
#include "VirtualLauncher.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Tmutil : public testing::Test {
protected:
    void play(const QByteArray& script)
    {
        tmutil.reset();
        queue.reset();
        launcher = std::make_unique<ScriptedLauncher>(runLoop, TmutilScript::fromJson(script));
        queue = std::make_unique<TMUtilQueue>(*launcher, runLoop, u"tool"_s);
        settings = std::make_unique<TimeMachineSettings>(*launcher, runLoop, workspace, alerts);
        tmutil = std::make_unique<TMUtil>(*queue, *settings);
    }
    void askStatus(const QString& who)
    {
        tmutil->getStatusWithCompletionHandler(
            [this, who](const TMStatus& status) { log.append(who + u':' + QString::number(int(status.state))); });
    }
    void askDisks()
    {
        tmutil->getBackupDestinationsWithCompletionHandler([this](bool success, const QList<BackupDestination>& list) {
            log.append(u"disks:%1,%2"_s.arg(success).arg(list.size()));
        });
    }
    void start(const QString& disk = {}, bool rotate = false)
    {
        tmutil->startBackupOnDiskWithIdentifier(disk, rotate, [this](std::int32_t status, bool success) {
            log.append(u"start:%1,%2"_s.arg(status).arg(success));
        });
    }
    void stop()
    {
        tmutil->stopBackupWithCompletionHandler(
            [this](bool failed, bool success) { log.append(u"stop:%1,%2"_s.arg(failed).arg(success)); });
    }

    VirtualRunLoop runLoop{Date(480'000h)};
    FakeWorkspace workspace;
    FakeAlerts alerts;
    std::unique_ptr<ScriptedLauncher> launcher;
    std::unique_ptr<TMUtilQueue> queue;
    std::unique_ptr<TimeMachineSettings> settings;
    std::unique_ptr<TMUtil> tmutil;
    QStringList log;
};

TEST_F(Tmutil, GivesTheToolItsWordsAndOneVariableAndTellsTheExitStatusAheadOfWhatTheOutputSays)
{
    play(R"([{"expect":["status"],"status":1},{"expect":["status"],"output":"{Running=0;}","status":1},
             {"expect":["destinationinfo","-X"],"status":1},{"expect":["destinationinfo","-X"]},
             {"expect":["startbackup","-d","disk"],"status":30},{"expect":["startbackup","-r"]},
             {"expect":["startbackup"]},{"expect":["stopbackup"],"status":1},{"expect":["stopbackup"]}])");
    askStatus(u"empty"_s);
    askStatus(u"full"_s);
    askDisks();
    askDisks();
    start(u"disk"_s, true);
    start({}, true);
    start();
    stop();
    stop();
    runLoop.advance(1s);
    EXPECT_EQ(log.join(u' '), u"empty:-1 empty:-1 full:-1 full:0 disks:1,0 disks:1,0 disks:1,0 "
                              "start:30,0 start:0,1 start:0,1 stop:1,0 stop:0,1"_s);
    for (const auto& request : launcher->launched()) {
        EXPECT_EQ(request.executable, u"tool"_s);
        EXPECT_EQ(request.environment, QStringList(u"command="_s + request.arguments.first()));
        EXPECT_EQ(request.captureOutput, !request.arguments.first().endsWith(u"backup"_s));
        EXPECT_FALSE(request.captureErrors);
    }
}

TEST_F(Tmutil, NoWaitingRequestTakesAnothersReportAndWhatAnAnswerLeadsToRunsAheadOfThem)
{
    play(R"([{"expect":["status"],"output":"{Running=0;}","delay":5},{"expect":["startbackup"]},
             {"expect":["stopbackup"]},{"expect":["status"],"output":"{Running=1;BackupPhase=Copying;}"},
             {"expect":["destinationinfo","-X"]}])");
    tmutil->getStatusWithCompletionHandler([this](const TMStatus& status) {
        log.append(u"first:%1"_s.arg(int(status.state)));
        start();
        runLoop.enqueue([this] { stop(); });
    });
    TMUtil other(*queue, *settings);
    other.getStatusWithCompletionHandler(
        [this](const TMStatus& status) { log.append(u"second:%1"_s.arg(int(status.state))); });
    askDisks();
    runLoop.advance(6s);
    EXPECT_EQ(log.join(u' '), u"first:0 start:0,1 stop:0,1 second:1 disks:1,0"_s);
}

TEST_F(Tmutil, AnyWayInWhichTheToolFailsIsAReportAndTheQueueMovesOn)
{
    play(R"([{"expect":["status"],"output":"{Running=0;}","fault":"refused"},
             {"expect":["status"],"output":"{Running=0;}","fault":"crash"},
             {"expect":["status"],"output":"{Running=0;}","fault":"endless"},
             {"expect":["status"],"output":"{Running=0;}","fault":"notUtf8"},
             {"expect":["destinationinfo","-X"],"fault":"hang"},
             {"expect":["startbackup"],"fault":"hang"},
             {"expect":["status"],"output":"{Running=0;}"}])");
    for (const auto* who : {"refused", "crash", "endless", "notUtf8"})
        askStatus(QString::fromLatin1(who));
    askDisks();
    start();
    askStatus(u"last"_s);
    runLoop.advance(59s);
    EXPECT_EQ(log.size(), 7) << "two reports for a failed exit, one for an output that cannot be read";
    runLoop.stepWallClock(-1h);
    runLoop.advance(2s);
    EXPECT_EQ(log.mid(7), (QStringList{u"disks:1,0"_s, u"disks:1,0"_s}));
    runLoop.advance(118s);
    EXPECT_EQ(log.size(), 9);
    runLoop.advance(2s);
    EXPECT_EQ(log.mid(9), (QStringList{u"start:9,0"_s, u"last:0"_s}));
    EXPECT_EQ(launcher->liveChildren(), 0);
}

TEST_F(Tmutil, ARequestOfItsOwnIsToldOfItsEndAndOfAChildThatWasTooSlow)
{
    play(R"([{"expect":["verify","-q"],"fault":"hang"},{"expect":["verify","-q"],"status":3,"delay":61}])");
    for (const auto longest : {std::optional<Seconds>(5s), std::optional<Seconds>()}) {
        queue->submit({.command = u"verify"_s,
                       .arguments = {u"-q"_s},
                       .ended = [this](const TaskResult& result,
                                       bool tooSlow) { log.append(u"%1,%2"_s.arg(result.status).arg(tooSlow)); },
                       .longest = longest});
    }
    runLoop.advance(6s);
    EXPECT_EQ(log, QStringList{u"9,1"_s});
    runLoop.advance(62s);
    EXPECT_EQ(log.value(1), u"3,0"_s);
    EXPECT_TRUE(launcher->launched().first().captureOutput && launcher->launched().first().captureErrors);
}

TEST_F(Tmutil, QuittingEndsWhatReadsAndLeavesAStartToFinish)
{
    for (const QByteArray command : {"status", "destinationinfo", "startbackup"}) {
        play(R"([{"expect":[")" + command + R"("],"delay":5}])");
        queue->submit({.command = QString::fromLatin1(command)});
        askStatus(u"waiting"_s);
        queue->shutDown();
        askStatus(u"late"_s);
        EXPECT_EQ(launcher->liveChildren(), command == "startbackup" ? 1 : 0);
        runLoop.advance(121s);
    }
    EXPECT_TRUE(log.isEmpty());
    play(R"([{"expect":["status"]}])");
    tmutil->getStatusWithCompletionHandler([this](const TMStatus&) { queue->shutDown(); });
    askStatus(u"waiting"_s);
    runLoop.advance(1s);
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(Tmutil, SettingsAreALinkFromVersion13OnAndAScriptBefore)
{
    play(R"([{"expect":["-e","tell Application \"System Preferences\"","-e","activate","-e",
        "set the current pane to pane id \"com.apple.prefs.backup\"","-e","end tell"],"status":1,"delay":600}])");
    tmutil->openTimeMachineSettings(u"Quillon"_s);
    EXPECT_EQ(workspace.opened.first().toString(),
              u"x-apple.systempreferences:com.apple.Time-Machine-Settings.extension"_s);
    const ScopedEnvironment monterey("QUILLON_SYSTEM_VERSION", "12.6");
    tmutil->openTimeMachineSettings(u"Quillon"_s);
    runLoop.advance(601s); // the system may be asking the user for long
    const auto& request = launcher->launched().first();
    EXPECT_EQ(request.executable, u"/usr/bin/osascript"_s);
    EXPECT_EQ(request.environment, QStringList(u"command=OpenTimeMachinePrefs"_s));
    EXPECT_FALSE(request.captureOutput);
    ASSERT_EQ(alerts.presented.size(), 1U);
    const auto& [alert, answer] = alerts.presented.front();
    EXPECT_EQ(alert.style, AlertStyle::Critical);
    EXPECT_EQ(alert.messageText, u"Permission Required"_s);
    EXPECT_EQ(alert.informativeText, u"To open the Time Machine preferences, click “Provide Permission” and allow "
                                     "Quillon to control System Preferences. Then try again."_s);
    EXPECT_EQ(alert.buttons, (QStringList{u"Close"_s, u"Provide Permission"_s}));
    EXPECT_EQ(alert.escapeButton, 0);
    answer(alertFirstButtonReturn);
    EXPECT_EQ(workspace.opened.size(), 1);
    answer(alertSecondButtonReturn);
    EXPECT_EQ(workspace.opened.last().toString(),
              u"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"_s);
}

TEST(TmutilPath, IsTheVariablesOrTheInstalledOnes)
{
    const ScopedEnvironment chosen("QUILLON_TMUTIL", "/opt/tmutil");
    EXPECT_EQ(tmutilPath(), u"/opt/tmutil"_s);
    const ScopedEnvironment none("QUILLON_TMUTIL", "");
    EXPECT_TRUE(tmutilPath().endsWith(u"/libexec/quillon/tmutil"_s));
    EXPECT_FALSE(tmutilPath().contains(u".."_s));
}

TEST(BackupPhases, HaveThesePhrasesAndKeysAndNewOnesNone)
{
    const struct {
        QString words, phrase;
        const char* key;
    } phases[] = {
        {{}, u"N/A"_s, "notAvailableAbbreviation"},
        {u"Starting"_s, u"Starting"_s, "tmPhaseStarting"},
        {u"FindingBackupVol"_s, u"Looking For Backup Disk"_s, "tmPhaseLookingForDisk"},
        {u"MountingBackupVol,MountingDiskImage"_s, u"Connecting To Backup Disk"_s, "tmPhaseConnectingToDisk"},
        {u"ThinningPreBackup,PreparingSourceVolumes,FindingChanges"_s, u"Preparing Backup"_s, "tmPhasePreparingBackup"},
        {u"Copying"_s, u"Copying"_s, "tmPhaseCopying"},
        {u"ThinningPostBackup"_s, u"Cleaning Up"_s, "tmPhaseCleaningUp"},
        {u"MountingBackupVolForHealthCheck,HealthCheckCopyHFSMeta,HealthCheckFsck"_s, u"Performing Health Check"_s,
         "tmPhaseHealthCheck"},
        {u"Finishing"_s, u"Finishing"_s, "tmPhaseFinishing"},
        {u"Not Running"_s, u"Not Running"_s, "tmPhaseDefault"},
        {u"Unknown"_s, u"Unknown"_s, "tmPhaseUnknown"},
        {u"NotRunning"_s, u"NotRunning"_s, nullptr},
    };
    for (const auto& [words, phrase, key] : phases) {
        for (const auto& word : words.split(u','))
            EXPECT_EQ(backupphase::phrase(word), phrase);
        EXPECT_STREQ(backupphase::localizationKey(phrase), key);
    }
}

TEST_F(Tmutil, TheAdviceNamesTheDisksAndSaysSoOnlyWhenItIsKnownThatThereIsNone)
{
    const QString list = u"\"output\":\"<plist><dict><key>Destinations</key><array>%1</array></dict></plist>\""_s;
    const QString disk = u"<dict><key>ID</key><string>%1</string><key>Name</key><string>%1%20Disk</string></dict>"_s;
    const struct {
        QString answer, text;
        bool diskIsMissing;
    } cases[] = {
        {list.arg(disk.arg(u"A"_s) + disk.arg(u"B"_s)), u"Backups are made to:\nA Disk\nB Disk"_s, false},
        {list.arg(QString()), u"No backup disk is set up yet"_s, true},
        {u"\"output\":\"<plist><dict>\""_s, localizedString("setupUnknownDisksMessage"), false},
        {u"\"status\":78"_s, localizedString("setupUnknownDisksMessage"), false},
    };
    for (const auto& [answer, text, diskIsMissing] : cases) {
        play(u"[{\"expect\":[\"destinationinfo\",\"-X\"],%1}]"_s.arg(answer).toUtf8());
        QList<SetupAdvice> given;
        giveSetupAdvice(*tmutil, runLoop, [&given](const SetupAdvice& advice) { given.append(advice); });
        runLoop.advance(61s);
        ASSERT_EQ(given.size(), 1) << answer.toStdString();
        EXPECT_TRUE(given.first().text.startsWith(text)) << given.first().text.toStdString();
        given.first().text.clear();
        EXPECT_EQ(given.first(),
                  (SetupAdvice{
                      AlertStyle::Informational, u"About the backup disks"_s, u"Backup Disks"_s, {}, diskIsMissing}));
    }
}

} // namespace quillon
