#include "ApplicationIdentity.h"
#include "Doctor.h"
#include "LocalDates.h"
#include "MemoryDefaults.h"
#include "NextBackup.h"
#include "Program.h"
#include "Report.h"
#include "ScopedEnvironment.h"
#include "StoredAndSent.h"
#include "VirtualLauncher.h"

#include <QFile>
#include <QJsonDocument>
#include <QLocale>
#include <QSysInfo>
#include <QTimer>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QByteArray page(const char* name)
{
    QFile file(QStringLiteral(PAGES) + QLatin1StringView(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

} // namespace

TEST(QuillonctlArguments, AreRead)
{
    const ScopedEnvironment zone("TZ", "America/New_York");
    using Command = Arguments::Command;
    const struct {
        QString words;
        Command command;
        bool json = false;
        int count = 5;
        std::optional<Date> from = std::nullopt;
    } rows[] = {
        {u"--help"_s, Command::Help},
        {u"-h"_s, Command::Help},
        {u"--version"_s, Command::Version},
        {u"status"_s, Command::Status},
        {u"destinations --json"_s, Command::Destinations, true},
        {u"doctor --json"_s, Command::Doctor, true},
        {u"next --count 1 --json"_s, Command::Next, true, 1},
        {u"next --from 2026-11-21T08:30 --count 1000"_s, Command::Next, false, 1000, local(2026, 11, 21, 8, 30)},
        {u"status --json --watch"_s, Command::OfRunning, true},
        {u"pause 1h"_s, Command::OfRunning},
        {u"history"_s, Command::History, false, 20},
        {u"history --count 3 --json"_s, Command::History, true, 3},
        {u"next --from 2026-11-21T08:30:59"_s, Command::Next, false, 5, local(2026, 11, 21, 8, 30, 59)},
    };
    for (const auto& [words, command, json, count, from] : rows) {
        SCOPED_TRACE(words.toStdString());
        QString error;
        const auto read = Arguments::parse(words.split(u' '), &error);
        ASSERT_TRUE(read) << error.toStdString();
        EXPECT_EQ(read->command, command);
        EXPECT_EQ(read->json, json);
        EXPECT_EQ(read->count, count);
        EXPECT_EQ(read->from, from);
    }
}

TEST(QuillonctlArguments, AreRefusedWithOneClearLine)
{
    const QString form = u"--from takes a local date and time such as 2026-11-21T12:00, not \"%1\""_s;
    const QString range = u"--count takes a number from 1 to 1000, not \"%1\""_s;
    const std::pair<QStringList, QString> rows[] = {
        {{}, u"a command is missing; --help lists them"_s},
        {{u"sta"_s}, u"unknown command \"sta\"; --help lists them"_s},
        {{u"stop"_s, u"--count"_s}, u"unexpected argument \"--count\""_s},
        {{u"status"_s, u"--count"_s, u"3"_s}, u"unexpected argument \"--count\""_s},
        {{u"history"_s, u"--from"_s, u"2026-11-21T10:00"_s}, u"unexpected argument \"--from\""_s},
        {{u"next"_s, u"extra"_s}, u"unexpected argument \"extra\""_s},
        {{u"--version"_s, u"--json"_s}, u"unexpected argument \"--json\""_s},
        {{u"--help"_s, u"--json"_s}, u"unexpected argument \"--json\""_s},
        {{u"next"_s, u"--json"_s, u"--count"_s}, u"--count needs a value"_s},
        {{u"next"_s, u"--count"_s, u"0"_s}, range.arg(u"0"_s)},
        {{u"next"_s, u"--count"_s, u"1001"_s}, range.arg(u"1001"_s)},
        {{u"next"_s, u"--count"_s, u"5x"_s}, range.arg(u"5x"_s)},
        {{u"next"_s, u"--from"_s, u"2026-02-30T10:00"_s}, form.arg(u"2026-02-30T10:00"_s)},
        {{u"next"_s, u"--from"_s, u"2026-11-21T25:00"_s}, form.arg(u"2026-11-21T25:00"_s)},
        {{u"next"_s, u"--from"_s, u"2026-11-21T10:00Z"_s}, form.arg(u"2026-11-21T10:00Z"_s)},
    };
    for (const auto& [words, expected] : rows) {
        QString error;
        EXPECT_FALSE(Arguments::parse(words, &error)) << words.join(u' ').toStdString();
        EXPECT_EQ(error, expected);
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
    defaults.setObject(
        settingskeys::changedStarts,
        ChangedStart::listToArray({{{2026, 11, 22, 12}}, {{2026, 11, 22, 14}, local(2026, 11, 22, 15)}}));
    EXPECT_EQ(comingStarts(defaults, local(2026, 11, 22, 0), 2),
              (QList<Date>{local(2026, 11, 22, 15), local(2026, 11, 23, 12)}));
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
    const auto compact = [](const QByteArray& json) {
        return QJsonDocument::fromJson(json).toJson(QJsonDocument::Compact).toStdString();
    };
    const TMStatus status{false, TMState::Stopping, u"Copying"_s, 0.25, 60.5, 1234567890123, u"ID"_s};
    EXPECT_EQ(compact(report::status(status, true)),
              R"({"bytesCopied":1234567890123,"destinationID":"ID","failed":false,"percent":0.25,"phase":"Copying",)"
              R"("state":2,"timeRemaining":60.5})");
    EXPECT_EQ(report::status(status, false).toStdString(), page("status.txt").toStdString());
    EXPECT_TRUE(report::status(TMStatus::failure(), false).startsWith("failed:         yes\nstate:          -1\n"));
    const QList<BackupDestination> disks{{u"1"_s, u"50%1 & more"_s, true}, {u"2"_s, u"B"_s, false}};
    EXPECT_EQ(compact(report::destinations(disks, true)),
              R"([{"id":"1","isLast":true,"name":"50%1 & more"},{"id":"2","isLast":false,"name":"B"}])");
    EXPECT_EQ(report::destinations(disks, false), "1  50%1 & more  (last used)\n2  B\n");
    const QList<Date> starts{local(2026, 11, 21, 12), local(2027, 7, 1, 9, 5, 7)};
    EXPECT_EQ(report::starts(starts, false), "2026-11-21T12:00:00-03:30\n2027-07-01T09:05:07-02:30\n");
    EXPECT_EQ(compact(report::starts(starts, true)),
              R"([{"date":"2026-11-21T12:00:00-03:30"},{"date":"2027-07-01T09:05:07-02:30"}])");
}

namespace {

/// The doctor in virtual time, in front of a played tool.
class DoctorTest : public testing::Test {
protected:
    DoctorTest()
    {
        defaults_.registerDefaults(registeredDefaults());
        // The doctor waits in an event loop: time goes on in it.
        time_.callOnTimeout([this] { runLoop_.advance(10ms); });
        time_.start(0);
    }

    Diagnosis examine(const QByteArray& script, const QString& tool = u"/home/me/bin/tmutil"_s)
    {
        ScriptedLauncher launcher(runLoop_, TmutilScript::fromJson(script));
        Diagnosis found = Doctor(runLoop_, launcher, defaults_, tool).examine();
        EXPECT_EQ(launcher.liveChildren(), 0);
        return found;
    }

    /// By identifier and name of the disk; all of the day before.
    void rememberBackups(const QList<std::pair<QString, QString>>& disks)
    {
        QVariantList records;
        for (const auto& [id, name] : disks) {
            BackupInfo info(id, local(2026, 11, 20, 12));
            info.setDiskName(name);
            records.append(*info.archivedData());
        }
        defaults_.setObject(settingskeys::latestBackupInfo, records);
    }

    /// A recorded page, with what differs between computers filled in.
    static QByteArray pageHere(const char* name)
    {
        QString text = QString::fromUtf8(page(name));
        for (const auto& [word, value] : {std::pair{u"@version"_s, bundleShortVersion()},
                                          {u"@build"_s, bundleVersion()},
                                          {u"@qt"_s, QString::fromLatin1(qVersion())},
                                          {u"@system"_s, QSysInfo::prettyProductName()},
                                          {u"@kernel"_s, QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion()},
                                          {u"@architecture"_s, QSysInfo::currentCpuArchitecture()},
                                          {u"@language"_s, QLocale::system().uiLanguages().value(0)}})
            text.replace(word, value);
        return text.toUtf8();
    }

    ScopedEnvironment zone_{"TZ", "Europe/Berlin"};
    ScopedEnvironment home_{"HOME", "/home/me"};
    ScopedEnvironment desktop_{"XDG_CURRENT_DESKTOP", "XFCE"};
    ScopedEnvironment session_{"XDG_SESSION_TYPE", "x11"};
    ScopedEnvironment platform_{"QT_QPA_PLATFORM", "offscreen"};
    ScopedEnvironment bus_{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"};
    VirtualRunLoop runLoop_{local(2026, 11, 21, 12)};
    QTimer time_;
    MemoryDefaults defaults_;
};

} // namespace

// The keys of the JSON page never change their meaning, and no page names a file of the user.
TEST_F(DoctorTest, TellsWhatGoesOnAndWhatHasGoneWrong)
{
    rememberBackups({{u"A"_s, u"Renamed"_s}, {u"B"_s, u"B"_s}, {u"C"_s, u"Former"_s}});
    defaults_.setObject(settingskeys::lastMenuBarIconState, 5LL);
    QList<CalendarIntervalRule> rules;
    for (qlonglong day = -1; day <= 9; ++day)
        rules.append({day, 9000});
    defaults_.setObject(settingskeys::calendarIntervals, CalendarIntervalRule::listToArray(rules));
    defaults_.setDate(settingskeys::pauseUntilDate, local(2026, 11, 21, 13));
    defaults_.setObject(settingskeys::enableRetryAtFailure, 0LL);
    auto found = examine(R"([
        {"expect":["status"],"delay":0.02,"output":"{ Running = 1; BackupPhase = MountingDiskImage;
          Progress = { Percent = 0.8; }; LastFailure = { Date = \"2026-11-19 07:22:58 +0000\"; DestinationID = A;
          Cause = UnreadFiles; Description = \"/home/me/secret\"; UnreadFiles = 1; }; }"},
        {"expect":["destinationinfo","-X"],"output":"<plist><dict><key>Destinations</key><array>
          <dict><key>ID</key><string>A</string><key>Name</key><string>50%1 &amp; more</string>
            <key>LastBackup</key><date>2026-11-21T07:00:00Z</date></dict>
          <dict><key>ID</key><string>B</string><key>Name</key><string>Studio%20Disk</string>
            <key>LastDestination</key><integer>1</integer><key>MountPoint</key><string>/media/me/secret</string>
            <key>LastBackup</key><date>2026-11-19T07:00:00Z</date></dict></array></dict></plist>"}])");
    EXPECT_EQ(report::doctorText(found).toStdString(), pageHere("troubled.txt").toStdString());
    EXPECT_EQ(QJsonDocument::fromJson(report::doctorJson(found)), QJsonDocument::fromJson(pageHere("troubled.json")))
        << report::doctorJson(found).toStdString();
    found.lastFailure->unreadFiles = 2;
    EXPECT_TRUE(report::doctorText(found).contains(", 2 files could not be read\n"));
}

TEST_F(DoctorTest, FindsNothingWrongWhereNothingIs)
{
    const ScopedEnvironment zone("TZ", "UTC");
    const ScopedEnvironment desktop("XDG_CURRENT_DESKTOP", std::nullopt);
    const ScopedEnvironment session("XDG_SESSION_TYPE", std::nullopt);
    defaults_.setObject(settingskeys::enableSchedule, 0LL);
    defaults_.setDate(settingskeys::pauseUntilDate, runLoop_.now() - 1s); // is over
    const auto found = examine(R"([{"expect":["status"],"output":"{ Running = 0; }"},
        {"expect":["destinationinfo","-X"],"output":"{ Destinations = ( { ID = A; Name = Disk; } ); }"}])");
    EXPECT_EQ(report::doctorText(found).toStdString(), pageHere("well.txt").toStdString());
    EXPECT_EQ(QJsonDocument::fromJson(report::doctorJson(found)), QJsonDocument::fromJson(pageHere("well.json")))
        << report::doctorJson(found).toStdString();
}

TEST_F(DoctorTest, SaysWhatItCannotTellWithoutAnAnswerOfTheTool)
{
    defaults_.setObject(settingskeys::calendarIntervals, QVariantList());
    rememberBackups({{u"A"_s, u"Disk"_s}});
    const auto refuses = examine(R"([{"expect":["status"],"fault":"refused"},
                                   {"expect":["destinationinfo","-X"],"status":3}])");
    EXPECT_EQ(report::doctorText(refuses).toStdString(), pageHere("silent.txt").toStdString());
    const auto babbles = examine(R"([{"expect":["status"],"output":"Hello"},
                                     {"expect":["destinationinfo","-X"],"output":"Hello"}])",
                                 u"/home/melissa/tmutil"_s);
    EXPECT_EQ(babbles.status.trouble, u"what the tool printed cannot be understood"_s);
    EXPECT_EQ(babbles.destinations.trouble, babbles.status.trouble);
    EXPECT_EQ(babbles.toolPath, u"/home/melissa/tmutil"_s);
}

TEST_F(DoctorTest, NamesAStopThatWasAskedForAFailureOfNoFileAndTheLastIcon)
{
    const QStringList icons = u"none,none,idle,running,completed,update available,failed,missed schedule"_s.split(u',');
    for (qlonglong state = -1; state <= 6; ++state) {
        defaults_.setObject(settingskeys::lastMenuBarIconState, state);
        const auto found = examine(R"([{"expect":["status"],
            "output":"{ Running = 1; Stopping = 1; BackupPhase = Copying; LastFailure = { Cause = NoSpace; }; }"},
            {"expect":["destinationinfo","-X"],"output":"{}"}])");
        EXPECT_EQ(found.iconState, icons[state + 1]);
        EXPECT_EQ(found.activity, u"a backup is being stopped, Copying, 0 %"_s);
        EXPECT_EQ(problems(found).first(), u"No backup disk is set up."_s);
        EXPECT_TRUE(report::doctorText(found).contains("Last failure      NoSpace\n\nBackup disks\n  none\n"));
    }
}

TEST_F(DoctorTest, AsksTheToolAsTheApplicationDoes)
{
    const struct {
        QString tool;
        QByteArray behaviour;
        QString trouble;
    } rows[] = {
        {u"/nonexistent"_s, R"("fault":"refused")", u"the tool is not there"_s},
        {u"/"_s, R"("fault":"refused")", u"the tool cannot be run"_s},
        {u"/"_s, R"("fault":"notUtf8")", u"the tool printed what is no text"_s},
        {u"/"_s, R"("delay":59)", {}},
    };
    for (const auto& [tool, behaviour, trouble] : rows) {
        ScriptedLauncher launcher(runLoop_,
                                  TmutilScript::fromJson(R"([{"expect":["status","-X"],)" + behaviour + "}]"));
        const auto answer = askTool(runLoop_, launcher, tool, {u"status"_s, u"-X"_s}, 60s);
        EXPECT_EQ(answer.trouble, trouble) << behaviour.toStdString();
        const TaskRequest& request = launcher.launched().first();
        EXPECT_EQ(request.executable, tool);
        EXPECT_EQ(request.environment, QStringList{u"command=status"_s});
        EXPECT_TRUE(request.captureErrors);
    }
}

TEST_F(DoctorTest, WaitsNoLongerForAToolThatHangs)
{
    const auto found = examine(R"([{"expect":["status"],"fault":"hang"},
                                   {"expect":["destinationinfo","-X"],"fault":"hang"}])");
    EXPECT_EQ(found.status.trouble, u"the tool gave no answer within 20 s"_s);
    EXPECT_EQ(found.destinations.time, 20s);
}

} // namespace quillon
