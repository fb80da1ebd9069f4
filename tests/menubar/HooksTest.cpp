#include "ControllerFixture.h"
#include "RemoteControl.h"
#include "ScopedEnvironment.h"

#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// The user's own programs on a Saturday with one backup a day at twelve. The files are real, what they do is played.
class HooksOf : public ControllerFixture {
protected:
    HooksOf()
    {
        hooksFolder = folder_.path();
        launch();
    }

    void install(const QString& event, const TmutilScript::Call& does,
                 QFile::Permissions permissions = QFile::ReadOwner | QFile::ExeOwner)
    {
        QFile file(folder_.filePath(event));
        file.remove();
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.setPermissions(permissions));
        machine.programs[event] = does;
    }
    /// What became of the latest start, in the ledger.
    std::string latest(const LedgerFilter& filter = {})
    {
        const LedgerEntry entry = ledger.read(filter).value().front();
        return QStringList{nameOf(entry.cause), nameOf(entry.outcome), nameOf(entry.reason), entry.detail}
            .join(u'|')
            .replace(folder_.path(), u"~"_s)
            .toStdString();
    }
    /// What the last program was told: event, disk, its name, bytes, duration, reason.
    std::string told() const
    {
        QStringList values;
        for (const TaskRequest& request : machine.launched()) {
            if (!request.executable.startsWith(folder_.path()))
                continue;
            values.clear();
            EXPECT_TRUE(request.captureErrors) << "the ledger would lack its words";
            for (const auto& name : {u"EVENT"_s, u"DISK"_s, u"DISK_NAME"_s, u"BYTES"_s, u"DURATION"_s, u"REASON"_s})
                values += request.environment.filter(u"QUILLON_%1="_s.arg(name)).value(0).section(u'=', 1);
        }
        return values.join(u'|').toStdString();
    }

private:
    QTemporaryDir folder_;
};

TEST_F(HooksOf, OneAheadOfAStartMayKeepItFromBeingMade)
{
    install(u"before"_s, {{}, "Mounting.\nNo network.\n", 3, 5});
    controller->backupNowSubMenuItemClicked(u"B"_s);
    wait(10);
    EXPECT_EQ(latest(), "user|skipped|hookFailed|No network.");
    EXPECT_EQ(told(), "before|B||||");
    const AlertRequest alert = takeAlert().first;
    EXPECT_EQ(alert.messageText, u"Warning"_s);
    EXPECT_EQ(alert.buttons, QStringList(u"Close"_s));
    EXPECT_EQ(alert.informativeText, u"The program “before” kept the backup from starting.\n\nNo network."_s);
    RemoteControl remote({runLoop, notifications, tmutil, *manager, *controller});
    QString answer;
    remote.take(ControlRequest::toLine({u"backup"_s}), [&answer](const QByteArray& line) {
        answer = ControlAnswer::fromLine(line)->text;
        return true;
    });
    wait(10);
    EXPECT_EQ(answer, u"a program of yours stopped it: No network."_s);
    until(today(12, 0, 30));
    EXPECT_EQ(latest(), "schedule|skipped|hookFailed|No network.");
    EXPECT_TRUE(alerts.presented.empty());

    install(u"before"_s, {{}, {}, 3});
    click();
    wait(10);
    EXPECT_EQ(latest(), "user|skipped|hookFailed|“~/before” ended with exit status 3.");
    install(u"before"_s, {{}, {}, 0, 0, Fault::Hang});
    click();
    wait(590);
    EXPECT_EQ(latest(), "user|skipped|hookFailed|“~/before” ended with exit status 3.");
    wait(20);
    EXPECT_EQ(latest(), "user|skipped|hookFailed|“~/before” was ended after ten minutes.");

    const auto expectRefused = [this] {
        click();
        wait(10);
        EXPECT_EQ(latest(), "user|skipped|hookFailed|“~/before” was not run. It has to be an executable file that only "
                            "you can change, in a folder that only you can change.");
    };
    constexpr auto own = QFile::ReadOwner | QFile::ExeOwner;
    const QFile::Permissions refused[] = {QFile::ReadOwner, own | QFile::WriteGroup, own | QFile::WriteOther};
    for (const auto permissions : refused) {
        install(u"before"_s, {}, permissions);
        expectRefused();
    }
    install(u"before"_s, {});
    constexpr uid_t somebodyElse = 1;
    if (chown(QFile::encodeName(hooksFolder + "/before"_L1).constData(), somebodyElse, gid_t(-1)) == 0)
        expectRefused(); // only root can give a file away
    EXPECT_EQ(machine.starts(), 0);

    install(u"before"_s, {{}, "Ready.\n", 0, 60});
    click();
    wait(50);
    EXPECT_EQ(machine.starts(), 0);
    wait(20);
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(latest(), "user|running||Ready.");
}

TEST_F(HooksOf, AStartThatHasWaitedForOneIsMadeOnlyIfItIsStillWanted)
{
    install(u"before"_s, {{}, {}, 0, 120});
    until(today(12, 1));
    controller->pauseForClicked(3600);
    until(today(12, 3));
    EXPECT_EQ(latest(), "schedule|skipped|settingsChanged|");
    controller->resumeScheduleClicked();
    sleepUntil(today(11) + std::chrono::hours(24));
    until(today(12, 1) + std::chrono::hours(24));
    machine.start(u"A"_s);
    wait(80);
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(latest({.outcome = LedgerEntry::Outcome::Skipped}), "schedule|skipped|backupRan|");
}

TEST_F(HooksOf, OneThatEndsTakesNothingFromOneThatStillRuns)
{
    install(u"before"_s, {{}, {}, 0, 60});
    install(u"completed"_s, {{}, {}, 0, 1});
    Hooks hooks({runLoop, machine, hooksFolder});
    QObject whoAsks;
    QList<Hooks::Event> ended;
    for (const auto event : {Hooks::Event::Before, Hooks::Event::Completed})
        hooks.run(event, {}, &whoAsks, [&ended, event](const Hooks::Result&) { ended += event; });
    wait(61);
    EXPECT_EQ(ended, (QList{Hooks::Event::Completed, Hooks::Event::Before}));
}

TEST_F(HooksOf, OfStartsThatWaitForOneTheLatestStands)
{
    install(u"before"_s, {{}, {}, 0, 120});
    manager->addNewSchedule();
    manager->updateBackupScheduleAtIndex(1, 12 * 3600 + 60, u"time"_s);
    until(today(11, 59, 30));
    click();
    wait(100);
    EXPECT_EQ(latest({.outcome = LedgerEntry::Outcome::Skipped}), "schedule|skipped|overtaken|");
    wait(30);
    EXPECT_EQ(latest({.outcome = LedgerEntry::Outcome::Skipped}), "schedule|skipped|startedByHand|");
    EXPECT_EQ(machine.starts(), 1);
}

TEST_F(HooksOf, NoneIsRunAheadOfAStartThatFindsABackup)
{
    install(u"before"_s, {{}, {}, 0, 1});
    until(today(11, 59, 50));
    runElsewhere(20);
    EXPECT_EQ(latest({.outcome = LedgerEntry::Outcome::Skipped}), "schedule|skipped|backupRan|");
    EXPECT_EQ(told(), "");
}

TEST_F(HooksOf, EachIsToldWhatHasBecomeOfAStartAndWhatItSaysIsKept)
{
    for (const auto& event : {u"completed"_s, u"failed"_s, u"skipped"_s})
        install(event, {{}, "Told.", 0, 1});
    defaults.stored[settingskeys::enableRetryAtFailure] = 0LL;
    click();
    wait(120);
    EXPECT_EQ(told(), "completed|A|First|4758333|84|");
    EXPECT_EQ(latest(), "user|completed||Told.");
    machine.phases = {{u"Copying"_s, 60, true}};
    machine.totalBytes = 0;
    click();
    wait(90);
    EXPECT_EQ(told(), "failed|B|Second||60|incomplete");
    EXPECT_EQ(latest(), "user|failed|incomplete|The disk is full.\nTold.");
    until(today(11, 59, 30));
    runElsewhere(40);
    EXPECT_EQ(told(), "skipped|||||backupRan");
}

TEST(HooksFolder, IsTheOneThatTheManualNames)
{
    const ScopedEnvironment configuration("XDG_CONFIG_HOME", "/somewhere");
    EXPECT_EQ(hooksFolder(), u"/somewhere/quillon/hooks"_s);
}

} // namespace quillon
