#include "EventLoop.h"
#include "FileUserDefaults_linux.h"
#include "PracticeTmutil.h"
#include "StoredAndSentNames.h"
#include "VirtualRunLoop.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

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
    start(application, {u"--menu-bar=bar"_s, u"--print-changes"_s, u"--back-up-now"_s});
    ASSERT_TRUE(hasPrinted("icon=3 ")) << printed.toStdString();
    EXPECT_FALSE(printed.contains("icon=5")) << "however quick a backup is";
    EXPECT_EQ(practice.run({u"latestbackup"_s}).status, 0);
    EXPECT_TRUE(runUntil([&] { return settings().string(settingskeys::lastBackupDiskIdentifier) == disk; }));

    QProcess second;
    start(second, {u"--pause-for-an-hour"_s});
    EXPECT_TRUE(runUntil([&] { return second.state() == QProcess::NotRunning; }));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(runUntil([&] { return settings().integer(settingskeys::pauseUntilTag) == 3600; }));
    EXPECT_FALSE(quillonctl({u"doctor"_s}).contains("not paused")) << "it reads the same settings";
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
