#include "DataManager.h"

#include "FakeServices.h"
#include "LocalDates.h"
#include "MemoryDefaults.h"
#include "Notifications.h"
#include "PropertyList.h"
#include "ScopedEnvironment.h"
#include "SettingsKeys.h"
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

    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    VirtualRunLoop runLoop{local(2026, 11, 21, 10)};
    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeLoginItem loginItem;
    QObject observer;
    QList<Date> started;
    std::unique_ptr<DataManager> manager;
};

TEST_F(Model, AFreshInstallationHasItsDefaultsAndRegistersTheLoginItemOnce)
{
    const auto& fresh = make();
    EXPECT_EQ(fresh.calendarIntervalSettings(), QList<CalendarIntervalRule>{CalendarIntervalRule()});
    EXPECT_TRUE(fresh.isScheduleEnabled());
    for (const auto& key :
         {settingskeys::enableRetryAtMissedSchedule, settingskeys::enableRetryAtFailure, settingskeys::showDetailedTime,
          settingskeys::enableMenuBarColors, settingskeys::rotateBackupDisks, settingskeys::launchAtSystemStart})
        EXPECT_EQ(defaults.integer(key), 1) << key.toStdString();
    EXPECT_EQ(defaults.integer(settingskeys::showMenuBarIconOnly), 0);
    EXPECT_FALSE(defaults.object(settingskeys::lastMenuBarIconState).isValid());
    EXPECT_FALSE(defaults.object(settingskeys::latestBackupInfo).isValid());
    EXPECT_EQ(defaults.stored.keys(), QStringList{settingskeys::firstLaunch}) << "defaults are never written";
    make();
    EXPECT_EQ(loginItem.calls, std::vector<bool>{true});
}

TEST_F(Model, ADeletedLastRuleStaysDeleted)
{
    make().deleteBackupScheduleAtIndex(0);
    EXPECT_FALSE(manager->nextScheduledBackupDate());
    EXPECT_FALSE(manager->startBackupTimer().isValid());
    EXPECT_TRUE(make().calendarIntervalSettings().isEmpty());
    manager->addNewSchedule();
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    manager->updateBackupScheduleAtIndex(0, 7200, u"time"_s);
    manager->updateBackupScheduleAtIndex(0, 1, u"day"_s);
    EXPECT_EQ(make().nextScheduledBackupDate(), local(2026, 11, 22, 2));
}

TEST_F(Model, StoredRubbishReadsAsNothingAndNeverCrashes)
{
    defaults.stored[settingskeys::calendarIntervals] =
        QVariantList{u"rule"_s, QVariantMap{{u"day"_s, u"2"_s}}, QVariantMap{{u"time"_s, QVariantList()}}};
    defaults.stored[settingskeys::latestBackupInfo] = QVariantList{1LL, QByteArray("rubbish"), QVariantMap()};
    defaults.stored[settingskeys::pauseUntilDate] = u"tomorrow"_s;
    EXPECT_EQ(make().calendarIntervalSettings(), (QList<CalendarIntervalRule>{{2, 0}, {0, 0}}));
    EXPECT_TRUE(manager->latestBackupInfo().isEmpty());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 0));
    defaults.stored[settingskeys::calendarIntervals] = 7LL;
    EXPECT_TRUE(make().calendarIntervalSettings().isEmpty());
}

TEST_F(Model, AYearOfScheduleStartsEachRuleOnceADay)
{
    defaults.stored[settingskeys::calendarIntervals] =
        CalendarIntervalRule::listToArray({{0, 2 * 3600 + 1800}, {8, 8 * 3600}, {1, 0}});
    make();
    runLoop.advanceTo(local(2027, 11, 21, 10));
    EXPECT_EQ(started.size(), 365 + 5 * 52 + 53);
    EXPECT_EQ(started.first(), local(2026, 11, 22, 0) + 1ms);
}

TEST_F(Model, WhatElseTheStoredRulesHoldSurvivesAnEditAtItsPlace)
{
    const auto rule = [](qlonglong time) {
        return QVariantMap{{u"day"_s, 2LL}, {u"time"_s, time}, {u"note"_s, u"kept"_s}};
    };
    defaults.stored[settingskeys::calendarIntervals] =
        QVariantList{u"first"_s, rule(60), u"between"_s, 7LL, rule(120), u"last"_s};
    make().updateBackupScheduleAtIndex(1, 180, u"time"_s);
    EXPECT_EQ(defaults.array(settingskeys::calendarIntervals),
              (QVariantList{u"first"_s, rule(60), u"between"_s, 7LL, rule(180), u"last"_s}));
    manager->deleteBackupScheduleAtIndex(0);
    manager->addNewSchedule();
    EXPECT_EQ(
        defaults.array(settingskeys::calendarIntervals),
        (QVariantList{u"first"_s, u"between"_s, 7LL, rule(180), u"last"_s, CalendarIntervalRule().toDictionary()}));
}

TEST_F(Model, ARetryReplacesTheRegularStartUnlessThatComesFirst)
{
    make().setRetryBackupDate(local(2026, 11, 21, 11));
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 11));
    manager->addNewSchedule();
    EXPECT_EQ(manager->retryBackupDate(), local(2026, 11, 21, 11)) << "a rule edit keeps a retry that comes first";
    manager->updateBackupScheduleAtIndex(0, 10 * 3600 + 1800, u"time"_s);
    EXPECT_FALSE(manager->retryBackupDate());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 10, 30));
    manager->setRetryBackupDate(local(2026, 11, 21, 10, 31));
    EXPECT_FALSE(manager->retryBackupDate());
    manager->setRetryBackupDate(local(2026, 11, 21, 10, 30));
    EXPECT_TRUE(manager->retryBackupDate());
    runLoop.advanceTo(local(2026, 11, 21, 10, 31));
    EXPECT_FALSE(manager->retryBackupDate());
    EXPECT_EQ(started.size(), 1);
}

TEST_F(Model, ARetryWithoutRulesIsKept)
{
    make().deleteBackupScheduleAtIndex(0);
    manager->setRetryBackupDate(local(2026, 11, 21, 11));
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 11));
    manager->saveAndBackupCalendarIntervalSettings();
    EXPECT_EQ(manager->retryBackupDate(), local(2026, 11, 21, 11));
}

TEST_F(Model, SwitchingTheScheduleOffStopsTheTimerAndLeavesTheRetryDate)
{
    make().setRetryBackupDate(local(2026, 11, 21, 11));
    manager->setIsScheduleEnabled(false);
    EXPECT_FALSE(manager->nextScheduledBackupDate());
    EXPECT_TRUE(manager->retryBackupDate());
    runLoop.advance(Seconds(86400));
    EXPECT_TRUE(started.isEmpty());
    manager->setIsScheduleEnabled(true);
    EXPECT_FALSE(manager->retryBackupDate());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
}

TEST_F(Model, APauseMovesTheNextDateAndIsClearedOnceItHasEnded)
{
    defaults.setDate(settingskeys::pauseUntilDate, local(2026, 11, 24, 15));
    defaults.stored[settingskeys::pauseUntilTag] = 259200LL;
    EXPECT_EQ(make().nextScheduledBackupDate(), local(2026, 11, 25, 12));
    EXPECT_EQ(defaults.integer(settingskeys::pauseUntilTag), 259200);
    runLoop.advanceTo(local(2026, 11, 25, 13));
    EXPECT_FALSE(defaults.object(settingskeys::pauseUntilDate).isValid());
    EXPECT_EQ(defaults.integer(settingskeys::pauseUntilTag), 0);
}

TEST_F(Model, TheSettingsTitleFollowsTheSystemVersion)
{
    EXPECT_STREQ(make().openSystemPreferencesTitleLocaleKey(), "openSystemPreferencesTitleVentura");
    const ScopedEnvironment monterey("QUILLON_SYSTEM_VERSION", "12.6.9");
    EXPECT_STREQ(make().openSystemPreferencesTitleLocaleKey(), "openSystemPreferencesTitle");
    const ScopedEnvironment early("QUILLON_SYSTEM_VERSION", "9.1");
    EXPECT_STREQ(make().openSystemPreferencesTitleLocaleKey(), "openSystemPreferencesTitle");
}

TEST_F(Model, KeepsOneRecordADiskNewestFirstAndStoresIt)
{
    make();
    const Date day = local(2026, 11, 20, 8);
    manager->recordLatestBackup(u"A"_s, u"Disk A"_s, 10, day);
    manager->recordLatestBackup(u"B"_s, u"Disk B"_s, 20, day + 1h);
    manager->recordLatestBackup(u"A"_s, u"Renamed"_s, 30, day + 2h);
    const auto records = make().latestBackupInfo();
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records[0].diskName(), u"Renamed"_s);
    EXPECT_EQ(records[0].totalBytes(), 30);
    EXPECT_EQ(records[0].date(), day + 2h);
    EXPECT_EQ(records[1].diskIdentifier(), u"B"_s);

    auto stored = defaults.array(settingskeys::latestBackupInfo);
    stored.insert(1, QByteArray("damaged"));
    EXPECT_EQ(DataManager::unArchiveLatestBackupInfo(stored), records) << "the good ones load in order";
}

TEST(BackupInfoRecord, MissingFieldsAreEmptyAndWrongOnesDropIt)
{
    const auto unarchive = [](const QVariantMap& fields) {
        return BackupInfo::unarchiveFromData(propertylist::toBinary(fields).value_or(QByteArray()));
    };
    const auto bare = unarchive({{u"diskName"_s, u"Disk"_s}});
    ASSERT_TRUE(bare);
    EXPECT_EQ(bare->diskName(), u"Disk"_s);
    EXPECT_EQ(bare->diskIdentifier(), u""_s);
    EXPECT_EQ(bare->date(), std::nullopt);
    EXPECT_EQ(bare->totalBytes(), 0);
    EXPECT_FALSE(unarchive({{u"diskName"_s, 7LL}}));
    EXPECT_FALSE(unarchive({{u"date"_s, u"today"_s}}));
    EXPECT_FALSE(unarchive({{u"totalBytes"_s, u"12"_s}}));
    EXPECT_FALSE(unarchive({{u"name"_s, u"another program's"_s}}));
    EXPECT_FALSE(BackupInfo::unarchiveFromData({}));
    BackupInfo info(u"\u05d0\U0001f600"_s, local(2026, 11, 21, 10));
    info.setTotalBytes(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(BackupInfo::unarchiveFromData(*info.archivedData()), info);
}

} // namespace quillon
