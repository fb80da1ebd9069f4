#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What the user is told on a Saturday with one backup a day at twelve.
class ConcernWatchOf : public ControllerFixture {
protected:
    ConcernWatchOf() { launch(); }

    /// What was posted since the last look; behind a stroke what stands on the desktop.
    void expectWords(const char* expected, int line = __builtin_LINE())
    {
        QStringList words;
        for (; looked_ < userNotifications.posted.size(); ++looked_)
            words.append(userNotifications.posted[looked_].identifier);
        words.append(u"|"_s);
        words += userNotifications.shown;
        EXPECT_EQ(words.join(u' ').toStdString(), expected) << "line " << line;
    }
    UserNotification lastWord() const { return userNotifications.posted.value(looked_ - 1); }
    /// What it says, with a mark ahead of what is urgent, and what can be chosen.
    std::string lastWords() const
    {
        QStringList words{(lastWord().isUrgent ? u"! "_s : u""_s) + lastWord().title + u'.', lastWord().text};
        for (const auto& action : lastWord().actions)
            words.append(u'[' + action.title + u']');
        return words.join(u' ').toStdString();
    }

private:
    qsizetype looked_ = 0;
};

TEST_F(ConcernWatchOf, AFailureIsToldOnceItsRetryHasFailedTooUntilABackupSucceeds)
{
    letRunsFail();
    click();
    wait(5 * 60);
    expectWords("|");
    wait(60 * 60);
    expectWords("backupFailed | backupFailed");
    EXPECT_EQ(lastWords(), "Backup Failed. The latest backup ended before it was complete. [Back Up Now]");
    launch();
    wait(60 * 60);
    expectWords("| backupFailed");

    sleepUntil(today(13) + 24h);
    wait(120);
    expectWords("backupFailed | backupFailed");
    machine.phases = SimulatedTimeMachine(runLoop).phases;
    userNotifications.choose(u"backUpNow"_s);
    wait(20);
    EXPECT_TRUE(machine.isRunning());
    expectWords("| backupFailed");
    userNotifications.choose(u"backUpNow"_s); // which the menu would take for a stop
    wait(120);
    expectWords("|");
    EXPECT_TRUE(defaults.date(settingskeys::lastBackupDate));

    defaults.stored.remove(settingskeys::toldConcerns);
    launch(); // what failed ahead of that success counts no more
    letRunsFail();
    click();
    wait(5 * 60);
    expectWords("|");
}

TEST_F(ConcernWatchOf, AFailureThatNoRetryFollowsIsToldAtOnceAlsoByTheNextLaunch)
{
    defaults.stored[settingskeys::enableRetryAtFailure] = 0LL;
    letRunsFail();
    click();
    wait(60);
    expectWords("backupFailed | backupFailed");
    defaults.stored.remove(settingskeys::toldConcerns);
    launch();
    expectWords("backupFailed | backupFailed");
    machine.phases = {{u"Copying"_s, 15 * 60, true}};
    sleepUntil(today(9, 55) + 24h);
    wait(10 * 60);
    expectWords("| backupFailed"); // the start that was missed runs, and may mend it
    wait(5 * 60);
    expectWords("backupFailed | backupFailed");
    launch();
    wait(60);
    machine.phases = SimulatedTimeMachine(runLoop).phases;
    click();
    wait(120);
    expectWords("|");
}

TEST_F(ConcernWatchOf, DaysWithoutABackupAreToldFromTheFirstLaunchOn)
{
    defaults.stored[settingskeys::daysWithoutBackup] = 2LL;
    machine.destinations.clear();
    sleepUntil(today(10) + 24h);
    launch();
    sleepUntil(today(9, 59) + 48h);
    wait(30);
    expectWords("|");
    wait(60);
    expectWords("noBackupForDays | noBackupForDays");
    EXPECT_EQ(lastWords(), "! No Recent Backup. No backup has been completed yet. [Back Up Now]");
    defaults.setDate(settingskeys::lastBackupDate, today(10));
    sleepUntil(today(11) + 72h);
    wait(30);
    expectWords("noBackupForDays | noBackupForDays");
    EXPECT_EQ(lastWords(), "! No Recent Backup. The latest backup was completed on 21 November 2026. [Back Up Now]");
    defaults.setDate(settingskeys::lastBackupDate, runLoop.now());
    wait(30);
    expectWords("|");
}

TEST_F(ConcernWatchOf, AStartWithoutARunARunWithoutProgressAndDamageAreTold)
{
    machine.phases = {{u"Finishing"_s, 0.05}}; // too short to be seen
    click();
    wait(110);
    expectWords("|");
    wait(20);
    expectWords("startWithoutRun | startWithoutRun");
    EXPECT_EQ(lastWords(), "Backup Did Not Start. Time Machine accepted the start of a backup, but none is running. "
                           "[Open Time Machine Settings]");
    userNotifications.choose(u"openTimeMachineSettings"_s);
    EXPECT_EQ(workspace.opened.size(), 1);

    machine.phases = {
        {u"FindingChanges"_s, 29 * 60}, {u"Copying"_s, 60 * 60, true}, {u"ThinningPostBackup"_s, 40 * 60}};
    runElsewhere((29 + 60 + 41) * 60);
    expectWords("|");
    machine.phases = {{u"FindingChanges"_s, 31 * 60}, {u"ThinningPostBackup"_s, 60 * 60}};
    runElsewhere(29 * 60);
    expectWords("|");
    wait(105);
    expectWords("noProgress | noProgress");
    EXPECT_EQ(lastWords(), "Backup Makes No Progress. The running backup has made no progress for half an hour.");
    machine.hasDamage = true;
    wait(60);
    expectWords("|");
    wait(60 * 60);
    expectWords("damageFound | damageFound");
    EXPECT_EQ(lastWords(), "! Backups Are Damaged. Time Machine found damage in your backups. Some files may not be "
                           "restorable. [Open Time Machine Settings]");
    machine.phases = {{u"Finishing"_s, 60}};
    runElsewhere(30);
    expectWords("| damageFound");
    machine.hasDamage = false;
    wait(60);
    expectWords("|");
}

} // namespace quillon
