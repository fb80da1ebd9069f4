#include "ControllerFixture.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A Saturday with one backup a day at twelve, on a machine whose power and disks come and go.
class MachineWatchOf : public ControllerFixture {
protected:
    MachineWatchOf() { defaults.setDate(settingskeys::lastBackupDate, today(9)); }

    void launchOnBattery()
    {
        defaults.stored[settingskeys::onlyOnMainsPower] = 1LL;
        launch();
        unplug();
    }
    void unplug(int charge = 50) { powerSupply.become({.onMains = false, .charge = charge}); }
    void plugIn() { powerSupply.become({}); }
    void mount(bool isMounted, qsizetype disk = 0)
    {
        machine.destinations[disk].isMounted = isMounted;
        mountWatch.change();
    }
    /// The ledger's latest entries, the newest first: when, why, what became of it.
    std::string noted(int count)
    {
        QStringList lines;
        const auto entries = ledger.read({.most = count}).value();
        for (const LedgerEntry& entry : entries)
            lines.append(u"%1 %2 %3 %4"_s
                             .arg(DateFormatter::string(entry.date, u"H:mm"_s), nameOf(entry.cause),
                                  nameOf(entry.outcome), nameOf(entry.reason))
                             .trimmed());
        return lines.join(u", "_s).toStdString();
    }
};

TEST_F(MachineWatchOf, AStartThatPowerForbidsIsHeldBackUntilMainsReturn)
{
    launchOnBattery();
    until(today(11, 59));
    const int asked = powerSupply.asked;
    until(today(12, 10));
    EXPECT_GT(powerSupply.asked, asked) << "who held a start back would be believed for ever";
    expect("1, Next: 23h 50m, Back Up Now, next 22 12:00");
    EXPECT_EQ(noted(1), "12:00 schedule skipped onBattery");
    EXPECT_TRUE(controller->snapshot().waitsForPower);
    EXPECT_EQ(ledger.read()->front().next, today(12) + 24h);
    sleepUntil(today(14));
    expect("1, Next: 22h 0m, Back Up Now, next 22 12:00"); // nothing was missed
    wait(2);
    launch();
    wait(60); // it outlives the program
    EXPECT_TRUE(controller->snapshot().waitsForPower);
    plugIn();
    after(300, "startbackup -r; 1, Next: 21h 54m, Back Up Now, next 22 12:00");
    EXPECT_EQ(noted(2), "12:00 schedule completed, 12:00 schedule skipped onBattery");
    EXPECT_FALSE(controller->snapshot().waitsForPower);
    launch();
    after(60, "1, Next: 21h 52m, Back Up Now, next 22 12:00"); // once is enough
}

TEST_F(MachineWatchOf, TheUserStartsOnBatteryAndARetryIsHeldBackLikeAnyOtherStart)
{
    launchOnBattery();
    letRunsFail();
    click();
    until(today(10, 20));
    expect("startbackup -r; 5, Next: 1h 40m, Back Up Now, next 21 12:00");
    EXPECT_EQ(noted(2), "10:06 retry skipped onBattery, 10:00 user failed incomplete");
    defaults.stored[settingskeys::chargeThatSuffices] = 80LL;
    unplug(81);
    after(10, "startbackup -r; 2, 45.5% 10s, Skip This Backup, next 21 12:00");
}

TEST_F(MachineWatchOf, AHeldStartComesAfterARunThatPowerFindsAndThatFails)
{
    launchOnBattery();
    letRunsFail();
    until(today(12, 10));
    runElsewhere(18);
    plugIn();
    wait(30);
    EXPECT_EQ(noted(2), "12:10 elsewhere failed incomplete, 12:00 schedule failed incomplete");
}

TEST_F(MachineWatchOf, AHeldStartIsGivenUpWithWhatGaveIt)
{
    const std::function<void()> reasons[] = {
        [this] {
            controller->pauseForClicked(3600);
            wait(1);
            controller->resumeScheduleClicked();
        },
        [this] {
            manager->setIsScheduleEnabled(false);
            wait(20);
            manager->setIsScheduleEnabled(true);
        },
        [this] {
            click();
            wait(120);
        },
        [this] { manager->updateBackupScheduleAtIndex(0, 8 * 3600LL, u"time"_s); },
        [this] { sleepUntil(runLoop.now() + 24h); },
    };
    launchOnBattery();
    for (int day = 21; const auto& reason : reasons) {
        manager->updateBackupScheduleAtIndex(0, 12 * 3600LL, u"time"_s);
        sleepUntil(local(2026, 11, day++, 11, 59));
        unplug();
        wait(120);
        EXPECT_TRUE(controller->snapshot().waitsForPower) << day;
        reason();
        wait(20);
        EXPECT_FALSE(controller->snapshot().waitsForPower) << day;
        const int starts = machine.starts();
        plugIn();
        wait(60);
        EXPECT_EQ(machine.starts(), starts) << day;
        if (manager->retryBackupDate()) // of the sleep
            controller->skipRetryAttemptClicked();
    }
}

TEST_F(MachineWatchOf, ADiskThatComesMakesUpForABackupThatCameToNothing)
{
    machine.destinations[0].isMounted = false;
    launch();
    const auto refuse = [this] {
        const Date next = *manager->nextScheduledBackupDate();
        sleepUntil(next - 1s);
        spoilNext(Fault::None, 4, u"startbackup"_s);
        wait(10);
    };
    wait(60);
    const auto before = machine.launched().size();
    for (int changes = 0; changes < 2; ++changes) { // as one disk makes
        mount(true);
        wait(0.6);
    }
    const auto asked = machine.launched().mid(before);
    EXPECT_TRUE(std::ranges::any_of(asked, [](const auto& call) { return call.arguments[0] == "destinationinfo"_L1; }));
    wait(60);
    EXPECT_EQ(machine.starts(), 0) << "nothing is to be made up for";
    refuse();
    EXPECT_EQ(noted(1), "12:00 schedule refused toolRefused");
    wait(60);
    spoilNext(Fault::NotUtf8, 0, u"destinationinfo"_s);
    mountWatch.change();
    wait(5);
    mount(true, 1); // it has been there
    wait(60);
    mount(false);
    wait(2);
    mount(true);
    wait(19);
    mount(false); // too short a time
    wait(60);
    spoilNext(Fault::Refused, 0, u"destinationinfo"_s);
    mount(true);
    wait(60);
    EXPECT_EQ(machine.starts(), 0) << "not told of";
    mountWatch.change();
    wait(10);
    mountWatch.change();
    wait(10);
    EXPECT_EQ(machine.starts(), 0);
    after(2, "startbackup -r; startbackup -r; 2, 0.0% Starting, Skip This Backup, next 22 12:00");
    wait(200);
    EXPECT_EQ(machine.starts(), 1) << "once for each time that it comes";
}

TEST_F(MachineWatchOf, ADiskThatComesStartsAheadOfTheRetryUnlessARuleForbidsIt)
{
    defaults.stored[settingskeys::onlyOnMainsPower] = 1LL;
    machine.destinations[0].isMounted = false;
    launch();
    sleepUntil(today(13));
    unplug();
    mount(true);
    after(30, "6, Retry: 5m, Back Up Now, retry 21 13:06");
    plugIn();
    mount(false);
    wait(2);
    spoilNext(Fault::None, 4, u"startbackup"_s);
    mount(true);
    after(22, "startbackup -r; 6, Retry: 5m, Back Up Now, retry 21 13:06"); // still, since nothing came of it
    mount(false);
    wait(2);
    mount(true);
    after(22, "startbackup -r; 2, 0.0% Starting, Skip This Backup, next 22 12:00");
    EXPECT_EQ(noted(3), "13:01 retry running, 13:00 retry refused toolRefused, 12:00 schedule missed asleep");
    wait(600);
    EXPECT_EQ(machine.starts(), 1);

    mount(false);
    wait(2);
    defaults.stored[settingskeys::startWhenDiskAppears] = 0LL;
    sleepUntil(today(13) + 24h);
    mount(true);
    wait(60);
    defaults.stored[settingskeys::startWhenDiskAppears] = 1LL;
    wait(60);
    EXPECT_EQ(machine.starts(), 1) << "it has come while nobody watched";
}

TEST_F(MachineWatchOf, ARunKeepsTheNameOfItsDiskWhereAMountsListCannotBeRead)
{
    launch();
    runElsewhere(20);
    EXPECT_EQ(row(menu().backupDiskMenuItem), u"(Backup Disk: First)"_s);
    for (const Fault fault : {Fault::Refused, Fault::Half, Fault::NotUtf8}) {
        spoilNext(fault, 0, u"destinationinfo"_s);
        mountWatch.change();
        wait(5);
        EXPECT_EQ(row(menu().backupDiskMenuItem), u"(Backup Disk: First)"_s);
    }
    machine.stop();
    wait(20);
    EXPECT_EQ(row(menu().backupDiskMenuItem), u"(Backup Disk: N/A)"_s) << "no backup was completed yet";
}

TEST_F(MachineWatchOf, RetriesWaitForMinutesAfterAWakeUp)
{
    defaults.stored[settingskeys::minutesAfterWake] = 10LL;
    machine.destinations[0].isMounted = false;
    launch();
    sleepUntil(today(13));
    expect("6, Retry: 11m, Back Up Now, retry 21 13:11");
    mount(true);
    after(30, "6, Retry: 9m, Back Up Now, retry 21 13:10");
    letRunsFail();
    until(today(13, 11));
    expect("startbackup -r; 5, Retry: 5m, Back Up Now, retry 21 13:16");
    defaults.stored[settingskeys::minutesAfterWake] = 120LL;
    launch(); // which has seen no wake-up
    runElsewhere(60);
    expect("5, Retry: 5m, Back Up Now, retry 21 13:17");
}

} // namespace quillon
