#include "Arguments.h"
#include "CalendarIntervalRule.h"
#include "ComingStarts.h"
#include "DefaultSettings.h"
#include "Diagnosis.h"
#include "LocalDates.h"
#include "MemoryDefaults.h"
#include "Report.h"
#include "ScopedEnvironment.h"
#include "SettingsKeys.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(QuillonctlArguments, AreReadOrRefusedWithOneLine)
{
    const ScopedEnvironment zone("TZ", "America/New_York");
    QString error;
    const auto next =
        Arguments::parse({u"next"_s, u"--count"_s, u"3"_s, u"--json"_s, u"--from"_s, u"2026-11-21 08:30"_s}, &error);
    ASSERT_TRUE(next) << error.toStdString();
    EXPECT_TRUE(next->json);
    EXPECT_EQ(next->count, 3);
    EXPECT_EQ(next->from, local(2026, 11, 21, 8, 30));
    const QList<QStringList> wrong = {{},
                                      {u"nonsense"_s},
                                      {u"status"_s, u"--count"_s, u"3"_s},
                                      {u"status"_s, u"extra"_s},
                                      {u"doctor"_s, u"--count"_s, u"3"_s},
                                      {u"--version"_s, u"--json"_s},
                                      {u"next"_s, u"--count"_s},
                                      {u"next"_s, u"--count"_s, u"0"_s},
                                      {u"next"_s, u"--count"_s, u"ten"_s},
                                      {u"next"_s, u"--from"_s, u"2026-02-30T10:00"_s},
                                      {u"next"_s, u"--from"_s, u"2026-11-21T10:00Z"_s},
                                      {u"next"_s, u"--from"_s, u"noon"_s}};
    for (const auto& words : wrong) {
        error.clear();
        EXPECT_FALSE(Arguments::parse(words, &error)) << words.join(u' ').toStdString();
        EXPECT_FALSE(error.isEmpty());
        EXPECT_FALSE(error.contains(u'\n'));
    }
}

TEST(ComingStarts, FollowTheRulesEachLaterThanTheOneBefore)
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    MemoryDefaults defaults;
    defaults.registerDefaults(registeredDefaults());
    EXPECT_EQ(comingStarts(defaults, local(2026, 11, 21, 12), 2),
              (QList<Date>{local(2026, 11, 21, 12), local(2026, 11, 22, 12)}));
    defaults.setObject(settingskeys::calendarIntervals,
                       CalendarIntervalRule::listToArray({{0, 43200}, {1, 43200}, {1, 50400}}));
    EXPECT_EQ(comingStarts(defaults, local(2026, 11, 22, 0), 3),
              (QList<Date>{local(2026, 11, 22, 12), local(2026, 11, 22, 14), local(2026, 11, 23, 12)}));
    defaults.setDate(settingskeys::pauseUntilDate, local(2026, 11, 25, 13));
    EXPECT_EQ(comingStarts(defaults, local(2026, 11, 22, 0), 1), QList<Date>{local(2026, 11, 26, 12)});
    defaults.setObject(settingskeys::enableSchedule, 0LL);
    EXPECT_TRUE(comingStarts(defaults, local(2026, 11, 22, 0), 3).isEmpty());
    defaults.setObject(settingskeys::enableSchedule, 1LL);
    defaults.setObject(settingskeys::calendarIntervals, QVariantList());
    EXPECT_TRUE(comingStarts(defaults, local(2026, 11, 22, 0), 3).isEmpty());
}

TEST(QuillonctlReports, CarryTheRecordsOwnNames)
{
    const ScopedEnvironment zone("TZ", "America/St_Johns");
    const TMStatus status{false, TMState::Stopping, u"Copying"_s, 0.25, 60.5, 1234567890123, u"ID"_s};
    const auto object = QJsonDocument::fromJson(report::status(status, true)).object();
    EXPECT_EQ(object, (QJsonObject{{u"failed"_s, false},
                                   {u"state"_s, 2},
                                   {u"phase"_s, u"Copying"_s},
                                   {u"percent"_s, 0.25},
                                   {u"timeRemaining"_s, 60.5},
                                   {u"bytesCopied"_s, qint64{1234567890123}},
                                   {u"destinationID"_s, u"ID"_s}}));
    EXPECT_TRUE(report::status(TMStatus::failure(), false).startsWith("failed:         yes\nstate:          -1\n"));
    const auto disks = QJsonDocument::fromJson(report::destinations({{u"1"_s, u"50%1 & more"_s, true}}, true)).array();
    EXPECT_EQ(disks, (QJsonArray{QJsonObject{{u"id"_s, u"1"_s}, {u"name"_s, u"50%1 & more"_s}, {u"isLast"_s, true}}}));
    EXPECT_EQ(report::starts({local(2026, 11, 21, 12)}, false), "2026-11-21T12:00:00-03:30\n");
    EXPECT_EQ(QJsonDocument::fromJson(report::starts({}, true)).array(), QJsonArray());
}

namespace {

QByteArray page(const char* name)
{
    QFile file(QStringLiteral(PAGES) + QLatin1StringView(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

Diagnosis everything()
{
    Diagnosis found;
    found.now = local(2026, 11, 21, 12);
    found.version = u"1.2.3"_s;
    found.build = u"45"_s;
    found.qtVersion = u"6.4.2"_s;
    found.system = u"Debian 12"_s;
    found.kernel = u"linux 6.1"_s;
    found.architecture = u"x86_64"_s;
    found.desktop = u"XFCE"_s;
    found.language = u"de_DE"_s;
    found.itemPlace = u"bar"_s;
    found.itemReason = u"there is no tray"_s;
    found.toolPath = u"~/bin/tmutil"_s;
    found.status = {u"status"_s, std::chrono::milliseconds(12), {}};
    found.destinations = {u"destinationinfo"_s, std::chrono::milliseconds(20000), u"the tool gave no answer"_s};
    found.activity = u"no backup runs"_s;
    found.disks = {{u"50%1 & more"_s, true, true, true, local(2026, 11, 20, 12)},
                   {u"Old"_s, false, std::nullopt, false, std::nullopt}};
    found.scheduleIsOn = true;
    found.rules = {u"every day, 12:00"_s, u"Sunday, 02:30"_s};
    found.comingStarts = {local(2026, 11, 22, 2, 30), local(2026, 11, 22, 12)};
    found.pausedUntil = local(2026, 11, 21, 13);
    found.retriesMissed = true;
    found.timeZone = u"Europe/Berlin"_s;
    found.offset = 3600;
    found.zoneChange = OffsetChange{local(2027, 3, 28, 3), 3600, 7200};
    found.iconState = u"failed"_s;
    found.lastRunFailed = true;
    found.lastFailure = Diagnosis::Failure{u"2026-11-19 07:22:58 +0000"_s, u"Old"_s, u"UnreadFiles"_s, 3};
    return found;
}

} // namespace

TEST(DoctorsReport, IsOneAlignedPage)
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    EXPECT_EQ(report::doctorText(everything()).toStdString(), page("doctor.txt").toStdString());
}

TEST(DoctorsReport, HasTheSameKeysForEver)
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    const auto expected = QJsonDocument::fromJson(page("doctor.json"));
    EXPECT_EQ(QJsonDocument::fromJson(report::doctorJson(everything())), expected)
        << report::doctorJson(everything()).toStdString();
}

TEST(DoctorsReport, NamesWhatIsWrongAndNothingElse)
{
    Diagnosis found;
    found.disks = {{u"Disk"_s, true, false, false, std::nullopt}};
    EXPECT_EQ(problems(found), QStringList()) << "a disk on the shelf is no problem, and neither is a schedule off";
    found.disks.first().isSetUp = false;
    EXPECT_EQ(problems(found), QStringList{u"No backup disk is set up."_s});
    found.destinations.trouble = found.status.trouble = u"the tool is not there"_s;
    found.scheduleIsOn = true;
    EXPECT_EQ(problems(found), (QStringList{u"What Time Machine does cannot be told: the tool is not there."_s,
                                            u"The backup disks cannot be told: the tool is not there."_s,
                                            u"The schedule is on but has no rules."_s}));
}

} // namespace quillon
