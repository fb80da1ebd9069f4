#include "EventLoop.h"
#include "FileUserDefaults_linux.h"
#include "PracticeTmutil.h"
#include "RunLoop.h"
#include "StoredAndSent.h"
#include "VirtualRunLoop.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTime>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

class Application : public testing::Test {
protected:
    Application()
    {
        practice.write(u"source/letter"_s, "Dear reader");
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, practice.path(u"settings"_s));
        environment.insert(u"XDG_STATE_HOME"_s, practice.path(u"settings"_s));
        environment.insert(u"XDG_RUNTIME_DIR"_s, practice.path(u"runtime"_s));
        environment.insert(u"QUILLON_TMUTIL"_s, practice.executable());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.remove(u"LANGUAGE"_s);
        // The session's own buses are none of this test's business.
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
        environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
        for (const auto& folder : {u"settings"_s, u"runtime"_s})
            QDir().mkpath(practice.path(folder));
        QFile::setPermissions(practice.path(u"runtime"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    ~Application() override
    {
        application.terminate();
        application.waitForFinished(-1);
    }

    FileUserDefaults settings(DefaultsAccess access = DefaultsAccess::ReadOnly)
    {
        return FileUserDefaults(practice.path(u"settings/com.Orvane.Quillon.plist"_s), access, clock);
    }

    void start(QProcess& process, const QStringList& options = {u"--menu-bar=bar"_s, u"--print-changes"_s})
    {
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUILLON_EXECUTABLE), options);
        ASSERT_TRUE(process.waitForStarted(-1));
    }

    /// Has the programs call a shell script in place of our tmutil.
    void useTool(const QByteArray& script)
    {
        practice.write(u"tool"_s, "#!/bin/sh\n" + script);
        QFile::setPermissions(practice.path(u"tool"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        environment.insert(u"QUILLON_TMUTIL"_s, practice.path(u"tool"_s));
    }

    bool hasPrinted(const QByteArray& text)
    {
        return runUntil([&] {
                   printed += application.readAllStandardOutput();
                   return printed.contains(text) || application.state() == QProcess::NotRunning;
               }) &&
               printed.contains(text);
    }

    QByteArray quillonctl(const QStringList& arguments)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUILLONCTL_EXECUTABLE), arguments);
        process.waitForFinished(-1);
        return process.readAllStandardOutput();
    }

    PracticeTmutil practice{QStringLiteral(TMUTIL_EXECUTABLE)};
    QProcessEnvironment environment;
    VirtualRunLoop clock{Date()};
    QProcess application;
    QByteArray printed;
};

TEST_F(Application, AStartDoesWhatItIsForAndHasTheRunningOneDoIt)
{
    const QString disk = practice.addDisk(u"Backup Disk"_s);
    settings(DefaultsAccess::ReadWrite).setObject(settingskeys::didShowAlertAtFirstLaunch, true);
    const QString latestVersion = u"Cirrel_Config_LatestAppVersion"_s; // as the service has told it a moment ago
    settings(DefaultsAccess::ReadWrite)
        .setObject(latestVersion,
                   QVariantMap{{u"type"_s, u"String"_s}, {u"value"_s, uR"({"os":"1.0","app":"99.0"})"_s}});
    settings(DefaultsAccess::ReadWrite).setDate(latestVersion + "_lastDate"_L1, QtRunLoop().now());
    start(application, {u"--menu-bar=bar"_s, u"--print-changes"_s, u"--back-up-now"_s});
    ASSERT_TRUE(hasPrinted("🟢")) << printed.toStdString();
    ASSERT_TRUE(hasPrinted("icon=3 ")) << printed.toStdString();
    EXPECT_FALSE(printed.contains("icon=5")) << "however quick a backup is";
    EXPECT_EQ(practice.run({u"latestbackup"_s}).status, 0);
    EXPECT_TRUE(runUntil([&] { return settings().string(settingskeys::lastBackupDiskIdentifier) == disk; }));
    EXPECT_TRUE(runUntil([&] { return quillonctl({u"history"_s}).contains("  completed  user  Backup Disk"); }));

    QProcess second;
    start(second, {u"--pause-for-an-hour"_s});
    EXPECT_TRUE(runUntil([&] { return second.state() == QProcess::NotRunning; }));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(runUntil([&] { return settings().integer(settingskeys::pauseUntilTag) == 3600; }));
    EXPECT_FALSE(quillonctl({u"doctor"_s}).contains("not paused")) << "it reads the same settings";
}

TEST_F(Application, DoesByCommandWhatItsMenuDoesAndTellsWhatCameOfIt)
{
    useTool("case $1 in\n"
            "status) [ ! -e \"$0.runs\" ]; echo \"{ Running = $?; BackupPhase = Copying; }\" ;;\n"
            "destinationinfo) echo '{ Destinations = ( { ID = A; Name = \"My Disk\"; } ); }' ;;\n"
            "startbackup) echo \"$*\" > \"$0.runs\" ;;\n"
            "stopbackup) rm \"$0.runs\" ;;\n"
            "esac\n");
    const auto expect = [this](const QStringList& words, int status, const char* expected) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(QUILLONCTL_EXECUTABLE), words);
        process.waitForFinished(-1);
        const QByteArray answer = process.readAll();
        EXPECT_EQ(process.exitCode(), status) << answer.toStdString();
        EXPECT_TRUE(answer.startsWith(expected)) << answer.toStdString();
    };
    expect({u"skip"_s}, 2, "quillonctl: Quillon is not running\n");
    expect({u"pause"_s}, 64, "quillonctl: pause takes ");
    settings(DefaultsAccess::ReadWrite).setObject(settingskeys::didShowAlertAtFirstLaunch, true);
    const qlonglong far = (QTime::currentTime().hour() + 12) % 24 * 3600LL; // from now, whenever that is
    settings(DefaultsAccess::ReadWrite)
        .setObject(settingskeys::calendarIntervals, QVariantList{QVariantMap{{u"day"_s, 0LL}, {u"time"_s, far}}});
    start(application);
    ASSERT_TRUE(hasPrinted("Next"));

    QProcess watch;
    watch.setProcessEnvironment(environment);
    watch.start(QStringLiteral(QUILLONCTL_EXECUTABLE), {u"status"_s, u"--watch"_s, u"--json"_s});
    QByteArray watched;
    const auto hasSeen = [&](const QByteArray& text) {
        return runUntil([&] { return (watched += watch.readAllStandardOutput()).contains(text); });
    };
    EXPECT_TRUE(hasSeen("\"state\":0"));
    expect({u"rules"_s}, 0, "1  every-day ");
    expect({u"rules"_s, u"add"_s, u"Monday"_s, u"3:00"_s}, 0, "1  every-day ");
    expect({u"rules"_s, u"remove"_s, u"2"_s}, 0, "1  every-day ");
    expect({u"skip"_s}, 0, "the backup of ");
    expect({u"postpone"_s, u"10m"_s}, 0, "the backup of ");
    expect({u"pause"_s, u"1h"_s}, 0, "the schedule is paused until ");
    EXPECT_EQ(settings().integer(settingskeys::pauseUntilTag), 3600);
    expect({u"resume"_s, u"--json"_s}, 0, "{\"done\":true,");
    expect({u"retry"_s}, 1, "quillonctl: no retry is pending\n");
    expect({u"skip-retry"_s, u"--json"_s}, 1, "quillonctl: no retry is pending\n{\"done\":false,");
    expect({u"settings"_s}, 0, "the settings are open\n");
    expect({u"backup"_s, u"--disk"_s, u"My Disk"_s}, 0, "the backup starts\n");
    EXPECT_TRUE(hasSeen("\"phase\":\"Copying\""));
    expect({u"stop"_s}, 0, "the backup is being stopped\n");
    application.terminate();
    EXPECT_TRUE(runUntil([&] { return watch.state() == QProcess::NotRunning; }));
    EXPECT_EQ(watch.exitCode(), 2);
}

TEST_F(Application, EndsInOrderWhenItIsToldToAndTakesAReadingChildAlong)
{
    useTool("echo $$ > \"$0.pid\"\nexec sleep 1000\n");
    start(application);
    QFile pidFile(practice.path(u"tool.pid"_s));
    ASSERT_TRUE(runUntil([&] { return pidFile.size() > 1; }));
    ASSERT_TRUE(pidFile.open(QIODevice::ReadOnly));
    const QString child = u"/proc/"_s + QString::fromUtf8(pidFile.readAll().trimmed());
    EXPECT_TRUE(QFile::exists(child));
    application.terminate();
    ASSERT_TRUE(application.waitForFinished(-1));
    EXPECT_EQ(application.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(application.exitCode(), 0);
    EXPECT_TRUE(runUntil([&] { return !QFile::exists(child); }));
}

TEST_F(Application, NumbersKeepTheirPointWhereTheLocaleHasAComma)
{
    const QTemporaryDir locales; // need not be installed
    const QString german = locales.filePath(u"de_DE.UTF-8"_s);
    ASSERT_EQ(QProcess::execute(u"localedef"_s, {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s, german}), 0);
    environment.insert(u"LOCPATH"_s, locales.path());
    environment.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
    useTool("echo '{ Running = 1; BackupPhase = Copying; DestinationID = A;"
            " Progress = { Percent = \"0.125\"; TimeRemaining = \"60.5\"; bytes = 4; }; }'\n");
    start(application);
    EXPECT_TRUE(hasPrinted("\"12.5%\"")) << printed.toStdString();

    const auto json = quillonctl({u"status"_s, u"--json"_s});
    const auto record = QJsonDocument::fromJson(json).object();
    EXPECT_EQ(record.value(u"percent"_s), 0.125) << json.toStdString();
    EXPECT_EQ(record.value(u"timeRemaining"_s), 60.5);
    EXPECT_TRUE(quillonctl({u"status"_s}).contains(" 0.125\n"));
}

TEST_F(Application, UnknownOptionsEndWithOneClearLine)
{
    for (const auto& option : {u"--nonsense"_s, u"--menu-bar=dock"_s, u"file"_s}) {
        QProcess process;
        start(process, {option});
        ASSERT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitCode(), 2);
        const auto error = process.readAllStandardError();
        EXPECT_TRUE(error.startsWith("quillon: ")) << error.toStdString();
        EXPECT_EQ(error.count('\n'), 1);
    }
}

} // namespace quillon
