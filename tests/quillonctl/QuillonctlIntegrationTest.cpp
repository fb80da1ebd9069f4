#include "BackupInfo.h"
#include "Doctor.h"
#include "EventLoop.h"
#include "FakeStatusNotifierTray.h"
#include "FileUserDefaults.h"
#include "MemoryDefaults.h"
#include "PrivateBus.h"
#include "QtRunLoop.h"
#include "Report.h"
#include "ScopedEnvironment.h"
#include "ScriptedTmutil.h"
#include "SettingsKeys.h"
#include "Task.h"
#include "TrayProtocols_linux.h"
#include "VirtualDisplay.h"
#include "VirtualRunLoop.h"
#include "Xcb_linux.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QByteArray answers = R"([
    {"expect":["status"],"output":"{ Running = 1; BackupPhase = Copying; Progress = { Percent = 0.25; };
      LastFailure = { Date = \"2026-11-19 07:22:58 +0000\"; DestinationID = A; Cause = UnreadFiles;
      Description = \"/home/me/secret\"; UnreadFiles = 3; }; }"},
    {"expect":["destinationinfo","-X"],"output":"{ Destinations = (
      { ID = B; Name = \"Studio%20Disk\"; LastDestination = 1; MountPoint = \"/media/me/secret\"; },
      { ID = A; Name = \"Backup Disk\"; } ); }"}])";

class Quillonctl : public testing::Test {
protected:
    Quillonctl()
    {
        environment_.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment_.insert(u"XDG_CURRENT_DESKTOP"_s, u"XFCE"_s);
        environment_.insert(u"TZ"_s, u"Europe/Berlin"_s);
        environment_.insert(u"XDG_CONFIG_HOME"_s, folder_.path());
        environment_.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus_.variable().section(u'=', 1));
        environment_.insert(u"DISPLAY"_s, display_.variable().section(u'=', 1));
    }

    struct Answer {
        int status;
        QByteArray output;
        QByteArray errors;
    };

    /// Runs the program in front of that tool; this process plays the desktop meanwhile.
    Answer ask(const QString& tool, const QStringList& words)
    {
        environment_.insert(u"QUILLON_TMUTIL"_s, tool);
        environment_.insert(u"HOME"_s, QFileInfo(tool).path());
        QProcess process;
        process.setProcessEnvironment(environment_);
        process.start(QStringLiteral(QUILLONCTL_EXECUTABLE), words);
        EXPECT_TRUE(runUntil([&] { return process.state() == QProcess::NotRunning; }));
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    QString itemPlace()
    {
        const auto page = ask(u"/nonexistent/tmutil"_s, {u"doctor"_s, u"--json"_s}).output;
        return QJsonDocument::fromJson(page)[u"item"_s][u"place"_s].toString();
    }

    const QTemporaryDir folder_;
    const PrivateBus bus_;
    const VirtualDisplay display_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

} // namespace

TEST_F(Quillonctl, PrintsJsonWhateverTheToolDoesAndSaysBesideItWhatIsWrong)
{
    const QByteArray failure = report::status(TMStatus::failure(), true);
    const QByteArray empty = "[\n]\n";
    struct {
        QByteArray script; ///< none: there is no tool
        QString command;
        int status;
        QByteArray output;
        QByteArray reason;
    } const rows[] = {
        {"", u"status"_s, 1, failure, "/nonexistent/tmutil: the tool is not there\n"},
        {R"([{"expect":["status"],"status":3}])", u"status"_s, 1, failure, "ended with status 3\n"},
        {R"([{"expect":["status"],"output":"Hello"}])", u"status"_s, 1, failure, "cannot be understood\n"},
        {"", u"destinations"_s, 1, empty, "/nonexistent/tmutil: the tool is not there\n"},
        {R"([{"expect":["destinationinfo","-X"],"output":"{}"}])", u"destinations"_s, 0, empty,
         "no backup disk is set up\n"},
    };
    for (const auto& row : rows) {
        const auto tool = row.script.isEmpty() ? nullptr : std::make_unique<ScriptedTmutil>(row.script);
        const auto answer = ask(tool ? tool->path() : u"/nonexistent/tmutil"_s, {row.command, u"--json"_s});
        EXPECT_EQ(answer.status, row.status) << row.reason.toStdString();
        EXPECT_EQ(answer.output, row.output) << row.reason.toStdString();
        EXPECT_TRUE(answer.errors.startsWith("quillonctl: ") && answer.errors.endsWith(row.reason))
            << answer.errors.toStdString();
    }
    EXPECT_EQ(ask(u"/nonexistent"_s, {u"next"_s, u"--count"_s, u"2"_s, u"--from"_s, u"2026-10-24T12:00"_s}).output,
              "2026-10-24T12:00:00+02:00\n2026-10-25T12:00:00+01:00\n");
}

TEST_F(Quillonctl, TellsTheDoctorOfToolDisksAndSettingsAndNamesNoFileOfTheUser)
{
    const Date latest{std::chrono::sys_days(std::chrono::year(2026) / 11 / 20)};
    {
        VirtualRunLoop runLoop{Date()};
        FileUserDefaults settings(folder_.filePath(u"com.Orvane.Quillon.plist"_s), DefaultsAccess::ReadWrite, runLoop);
        BackupInfo current(u"A"_s, latest);
        BackupInfo former(u"C"_s, latest);
        former.setDiskName(u"Former"_s);
        settings.setObject(settingskeys::latestBackupInfo,
                           QVariantList{*current.archivedData(), *former.archivedData()});
        settings.setObject(settingskeys::lastMenuBarIconState, 5LL);
        settings.setObject(settingskeys::enableRetryAtFailure, 0LL);
    }
    const ScriptedTmutil tool(answers);
    const auto answer = ask(tool.path(), {u"doctor"_s, u"--json"_s});
    EXPECT_EQ(answer.status, 1) << "a backup has failed";
    const auto found = QJsonDocument::fromJson(answer.output);
    EXPECT_EQ(found[u"tool"_s][u"path"_s], u"~/tmutil"_s);
    EXPECT_EQ(found[u"tool"_s][u"activity"_s], u"a backup runs, Copying, 25 %"_s);
    EXPECT_EQ(found[u"tool"_s][u"status"_s][u"trouble"_s], QJsonValue());
    EXPECT_EQ(found[u"tool"_s][u"lastFailure"_s][u"disk"_s], u"Backup Disk"_s);
    EXPECT_EQ(found[u"tool"_s][u"lastFailure"_s][u"cause"_s], u"UnreadFiles"_s);
    const auto disk = [](const QString& name, bool isSetUp, QJsonValue isConnected, bool isLast, QJsonValue backup) {
        return QJsonObject{{u"name"_s, name},
                           {u"isSetUp"_s, isSetUp},
                           {u"isConnected"_s, isConnected},
                           {u"isLast"_s, isLast},
                           {u"latestBackup"_s, backup}};
    };
    EXPECT_EQ(found[u"disks"_s].toArray(),
              (QJsonArray{disk(u"Backup Disk"_s, true, false, false, u"2026-11-20T01:00:00+01:00"_s),
                          disk(u"Studio Disk"_s, true, true, true, QJsonValue()),
                          disk(u"Former"_s, false, QJsonValue(), false, u"2026-11-20T01:00:00+01:00"_s)}));
    EXPECT_EQ(found[u"schedule"_s][u"rules"_s].toArray(), QJsonArray{u"every day, 12:00"_s});
    EXPECT_EQ(found[u"schedule"_s][u"comingStarts"_s].toArray().size(), 5);
    EXPECT_EQ(found[u"schedule"_s][u"retriesFailed"_s], false);
    EXPECT_EQ(found[u"system"_s][u"desktop"_s], u"XFCE"_s);
    EXPECT_EQ(found[u"item"_s][u"lastIcon"_s], u"failed"_s);
    EXPECT_EQ(found[u"timeZone"_s][u"name"_s], u"Europe/Berlin"_s);
    const auto change = found[u"timeZone"_s][u"nextChange"_s];
    EXPECT_TRUE(change[u"at"_s].toString().contains(u"T03:00:00+02:00"_s) ||
                change[u"at"_s].toString().contains(u"T02:00:00+01:00"_s));
    EXPECT_FALSE(found.toJson().contains("secret"));
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"com.Orvane.Quillon.plist"_s, u"com.Orvane.Quillon.plist.lock"_s}));
}

TEST_F(Quillonctl, FindsTheTrayThatIsThere)
{
    EXPECT_EQ(itemPlace(), u"bar"_s);
    {
        const FakeStatusNotifierTray tray(bus_.connect(u"tray"_s));
        EXPECT_EQ(itemPlace(), u"tray"_s);
    }
    QDBusConnection::disconnectFromBus(u"tray"_s);
    EXPECT_EQ(itemPlace(), u"bar"_s);
    xcb_connection_t* panel = xcb_connect(qPrintable(display_.variable().section(u'=', 1)), nullptr);
    const xcb_window_t window = xcb_generate_id(panel);
    xcb_create_window(panel, XCB_COPY_FROM_PARENT, window, xcb_setup_roots_iterator(xcb_get_setup(panel)).data->root, 0,
                      0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(panel, window, internAtom(panel, trayprotocols::traySelection), XCB_CURRENT_TIME);
    EXPECT_TRUE(isOwned(panel, internAtom(panel, trayprotocols::traySelection)));
    EXPECT_EQ(itemPlace(), u"tray"_s);
    environment_.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    EXPECT_EQ(itemPlace(), u"bar"_s);
    xcb_disconnect(panel);
}

TEST(Doctor, ComesBackFromAToolThatHangsOrIsNotThere)
{
    const ScopedEnvironment bus("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const ScopedEnvironment platform("QT_QPA_PLATFORM", "offscreen");
    QtRunLoop runLoop;
    Task launcher;
    const MemoryDefaults defaults;
    const ScriptedTmutil tool(R"([{"expect":["status"],"fault":"hang"},
                                  {"expect":["destinationinfo","-X"],"output":"{}"}])");
    const auto hangs = Doctor(runLoop, launcher, defaults, tool.path()).examine(std::chrono::seconds(1));
    EXPECT_EQ(problems(hangs),
              (QStringList{u"What Time Machine does cannot be told: the tool gave no answer within 1 s."_s,
                           u"No backup disk is set up."_s}));
    EXPECT_GE(hangs.status.time, std::chrono::seconds(1));
    const auto isMissing = Doctor(runLoop, launcher, defaults, u"/nonexistent/tmutil"_s).examine();
    EXPECT_EQ(isMissing.status.trouble, u"the tool is not there"_s);
    EXPECT_EQ(isMissing.destinations.trouble, u"the tool is not there"_s);
}

} // namespace quillon
