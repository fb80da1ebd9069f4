#include "DataManager.h"

#include "DateFormatter.h"
#include "FakeServices.h"
#include "LocalDates.h"
#include "MemoryDefaults.h"
#include "PropertyList.h"
#include "ScopedEnvironment.h"
#include "StoredAndSent.h"
#include "VirtualRunLoop.h"

#include <QDateTime>
#include <QObject>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Model : public testing::Test {
protected:
    Model()
    {
        notifications.addObserver(notifications::scheduledBackupShouldStart, &observer,
                                  [this](const QVariantMap&) { started.append(runLoop.now()); });
    }

    DataManager& make()
    {
        manager = std::make_unique<DataManager>(DataManager::Services{runLoop, defaults, notifications, loginItem});
        return *manager;
    }
    void expect(std::optional<Date> next, std::optional<Date> retry = {})
    {
        EXPECT_EQ(manager->nextScheduledBackupDate(), next);
        EXPECT_EQ(manager->startBackupTimer().isValid(), next.has_value());
        EXPECT_EQ(manager->retryBackupDate(), retry);
    }
    /// On the day that the tests begin, at ten, and after it.
    static Date today(int hour, int minute = 0) { return local(2026, 11, 21, hour, minute); }

    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    VirtualRunLoop runLoop{today(10)};
    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeLoginItem loginItem;
    QObject observer;
    QList<Date> started;
    std::unique_ptr<DataManager> manager;
};

TEST_F(Model, AFreshInstallationBacksUpAtNoonAndRegistersTheLoginItemOnceIfItIsWanted)
{
    EXPECT_TRUE(make().isScheduleEnabled());
    expect(today(12));
    EXPECT_EQ(defaults.stored, (QVariantMap{{settingskeys::firstLaunch, false}})) << "defaults are never written";
    make();
    EXPECT_EQ(loginItem.calls, std::vector<bool>{true});
    defaults.stored = {{settingskeys::launchAtSystemStart, 0LL}, {settingskeys::enableSchedule, 2LL}};
    EXPECT_FALSE(make().isScheduleEnabled());
    EXPECT_EQ(loginItem.calls.size(), 1U);
}

TEST(SharedModel, IsTheOneThatMainHasCreated)
{
    static VirtualRunLoop runLoop(local(2026, 11, 21, 10)); // as long-lived as what stands on it
    static MemoryDefaults defaults;
    static NotificationCenter notifications;
    static FakeLoginItem loginItem;
    const DataManager& created = DataManager::createSharedInstance({runLoop, defaults, notifications, loginItem});
    EXPECT_EQ(&DataManager::sharedInstance(), &created);
}

TEST_F(Model, ADeletedLastRuleStaysDeleted)
{
    make().deleteBackupScheduleAtIndex(0);
    make();
    expect({});
    manager->setRetryBackupDate(today(11));
    manager->saveAndBackupCalendarIntervalSettings();
    expect(today(11), today(11)); // nothing comes before it
    manager->setRetryBackupDate({});
    manager->addNewSchedule();
    expect(today(12));
}

TEST_F(Model, StoredRubbishReadsAsNothingAndNeverCrashes)
{
    defaults.stored[settingskeys::calendarIntervals] =
        QVariantList{u"rule"_s, QVariantMap{{u"day"_s, u"2"_s}}, QVariantMap{{u"time"_s, QVariantList()}}};
    defaults.stored[settingskeys::pauseUntilDate] = u"tomorrow"_s;
    EXPECT_EQ(make().calendarIntervalSettings(), (QList<CalendarIntervalRule>{{2, 0}, {0, 0}}));
    expect(today(24));
    defaults.stored[settingskeys::calendarIntervals] = 7LL;
    EXPECT_TRUE(make().calendarIntervalSettings().isEmpty());
}

TEST_F(Model, WhatElseTheStoredRulesHoldSurvivesAnEditAtItsPlace)
{
    const auto rule = [](qlonglong time) {
        return QVariantMap{{u"day"_s, 2LL}, {u"time"_s, time}, {u"note"_s, u"kept"_s}};
    };
    const auto stored = [this] { return defaults.array(settingskeys::calendarIntervals); };
    defaults.stored[settingskeys::calendarIntervals] =
        QVariantList{u"first"_s, rule(60), u"between"_s, 7LL, rule(120), u"last"_s};
    make().updateBackupScheduleAtIndex(1, 180, u"time"_s);
    EXPECT_EQ(stored(), (QVariantList{u"first"_s, rule(60), u"between"_s, 7LL, rule(180), u"last"_s}));
    manager->deleteBackupScheduleAtIndex(0);
    EXPECT_EQ(stored(), (QVariantList{u"first"_s, u"between"_s, 7LL, rule(180), u"last"_s}));
}

TEST_F(Model, ARetryReplacesTheRegularStartUnlessThatComesFirst)
{
    make().setRetryBackupDate(today(11));
    expect(today(11), today(11));
    manager->addNewSchedule();
    expect(today(11), today(11)); // a rule edit keeps a retry that comes first
    manager->updateBackupScheduleAtIndex(0, 11 * 3600LL, u"time"_s);
    expect(today(11), today(11));
    manager->updateBackupScheduleAtIndex(0, 10 * 3600 + 1800, u"time"_s);
    expect(today(10, 30));
    manager->setRetryBackupDate(today(10, 31));
    expect(today(10, 30));
    manager->setRetryBackupDate(today(10, 30));
    expect(today(10, 30), today(10, 30));
    runLoop.advanceTo(today(10, 31));
    expect(today(12));
    EXPECT_EQ(started.size(), 1);
}

TEST_F(Model, AChangedStartIsThatOfItsRuleAndOfItsDayAlone)
{
    make().addNewSchedule({7, 14 * 3600LL});
    EXPECT_TRUE(manager->changeNextStart({})); // of noon
    expect(today(14));
    EXPECT_TRUE(manager->changeNextStart(today(16)));
    EXPECT_EQ(manager->startAfterNext(), today(24 + 12));
    EXPECT_EQ(manager->startsBetween(today(11), today(24 + 14)), (QList{today(16), today(24 + 12)}));
    EXPECT_EQ(manager->startsBetween(today(16), today(24 + 12)), QList{today(16)});
    make();
    expect(today(16));
    manager->updateBackupScheduleAtIndex(1, 13 * 3600LL, u"time"_s);
    expect(today(13)); // another start; the postponed one is none of the rules any more
    manager->updateBackupScheduleAtIndex(1, 14 * 3600LL, u"time"_s);
    expect(today(16));
    const Date postponed = today(16);
    {
        const ScopedEnvironment west("TZ", "America/New_York");
        manager->scheduleNextBackup();
        expect(postponed); // an instant, like the end of a pause
        runLoop.stepWallClock(-24h);
        manager->scheduleNextBackup();
        expect(local(2026, 11, 20, 12)); // no other day is meant
        runLoop.stepWallClock(24h);
    }
    manager->scheduleNextBackup();
    EXPECT_TRUE(manager->changeNextStart({}));
    expect(today(24 + 12));
    for (int more = 0; more < 18; ++more)
        EXPECT_TRUE(manager->changeNextStart({}));
    const auto next = manager->nextScheduledBackupDate();
    EXPECT_FALSE(manager->changeNextStart({})) << "there are twenty";
    expect(next);
    runLoop.stepWallClock(30 * 24h);
    manager->scheduleNextBackup();
    EXPECT_TRUE(manager->changeNextStart({}));
    EXPECT_EQ(defaults.array(settingskeys::changedStarts).size(), 1) << "what is over is dropped";
    defaults.stored[settingskeys::changedStarts] = QVariantList{7LL, QVariantMap{{u"start"_s, u"noon"_s}}};
    manager->scheduleNextBackup(); // rubbish changes nothing
    EXPECT_TRUE(ChangedStart::listFromArray({QVariantMap{{u"start"_s, u"2026-11-22T25:00:00"_s}}}).isEmpty());
    manager->deleteBackupScheduleAtIndex(0);
    manager->deleteBackupScheduleAtIndex(0);
    expect({});
    EXPECT_FALSE(manager->changeNextStart({}));
}

TEST_F(Model, SwitchingTheScheduleOffStopsTheTimerAndLeavesTheRetryDate)
{
    make().setRetryBackupDate(today(11));
    manager->setIsScheduleEnabled(true);
    expect(today(11), today(11)); // which changes nothing
    manager->setIsScheduleEnabled(false);
    expect({}, today(11));
    runLoop.advance(24h);
    EXPECT_TRUE(started.isEmpty());
    manager->updateBackupScheduleAtIndex(0, 13 * 3600LL, u"time"_s);
    expect(today(11), today(11)); // an edit arms the timer all the same
    manager->setRetryBackupDate({});
    expect({});
    manager->setIsScheduleEnabled(true);
    expect(today(24 + 13));
}

TEST_F(Model, KeepsOneRecordADiskNewestFirstAndStoresIt)
{
    make();
    manager->recordLatestBackup(u"A"_s, u"Disk A"_s, 10, today(6));
    manager->recordLatestBackup(u"B"_s, u"Disk B"_s, 20, today(7));
    manager->recordLatestBackup(u"A"_s, u"Renamed"_s, 30, today(8));
    auto stored = defaults.array(settingskeys::latestBackupInfo);
    stored.insert(1, QByteArray("damaged"));
    stored.prepend(7LL);
    defaults.stored[settingskeys::latestBackupInfo] = stored;
    QStringList records;
    for (const BackupInfo& record : make().latestBackupInfo())
        records +=
            record.diskName() + u" %1 "_s.arg(record.totalBytes()) + DateFormatter::string(*record.date(), u"H"_s);
    EXPECT_EQ(records, (QStringList{u"Renamed 30 8"_s, u"Disk B 20 7"_s})) << "the good ones load in order";
}

TEST(BackupInfoRecord, MissingFieldsAreEmptyAndWrongOnesDropIt)
{
    const auto unarchive = [](const QVariantMap& fields) {
        return BackupInfo::unarchiveFromData(propertylist::toBinary(fields).value_or(QByteArray()));
    };
    const struct {
        QString key;
        QVariant right, wrong;
    } fields[] = {
        {u"diskIdentifier"_s, u"\u05d0\U0001f600"_s, 7LL},
        {u"diskName"_s, u"Disk"_s, QVariantList()},
        {u"date"_s, QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC), u"today"_s},
        {u"totalBytes"_s, std::numeric_limits<qlonglong>::max(), u"12"_s},
    };
    QVariantMap whole;
    for (const auto& [key, right, wrong] : fields) {
        whole.insert(key, right);
        EXPECT_FALSE(unarchive({{key, wrong}})) << key.toStdString();
        const auto bare = unarchive({{key, right}});
        ASSERT_TRUE(bare) << key.toStdString();
        EXPECT_EQ(bare->date().has_value(), key == "date"_L1);
    }
    EXPECT_EQ(propertylist::parse(*unarchive(whole)->archivedData()), whole);
    EXPECT_TRUE(unarchive({{u"totalBytes"_s, 1.5}})) << "other numbers will do";
    EXPECT_FALSE(unarchive({{u"name"_s, u"another program's"_s}}));
    EXPECT_FALSE(BackupInfo::unarchiveFromData({}));
}

} // namespace quillon
