#include "EventLoop.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(BrowseProgram, CallsTheToolItIsToldAndRunsOncePerUser)
{
    const QTemporaryDir folder;
    QFile tool(folder.filePath(u"tmutil"_s));
    ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\necho \"$@\" >>'" + folder.filePath(u"calls"_s).toUtf8() + R"('
[ "$1" = listbackups ] && echo '<plist version="1.0"><array><dict><key>Name</key><string>/b</string><key>Date</key>'\
'<date>2026-11-20T07:22:58Z</date></dict></array></plist>'
)");
    tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    tool.close();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
    environment.insert(u"XDG_CACHE_HOME"_s, folder.path());
    environment.insert(u"QUILLON_TMUTIL"_s, tool.fileName());

    QProcess first;
    first.setProcessEnvironment(environment);
    first.start(QStringLiteral(BROWSE_EXECUTABLE), QStringList());
    const auto calls = [&folder] {
        QFile file(folder.filePath(u"calls"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    ASSERT_TRUE(runUntil([&] {
        return calls().startsWith("destinationinfo -X\nlistbackups -X\nlistfiles --json -- /b\n");
    })) << calls().toStdString();

    QProcess second;
    second.setProcessEnvironment(environment);
    second.setWorkingDirectory(u"/usr"_s);
    second.start(QStringLiteral(BROWSE_EXECUTABLE), {u"lib/file"_s});
    ASSERT_TRUE(second.waitForFinished(-1));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(runUntil([&] { return calls().contains("listfiles --json -- /b/usr/lib\n"); })) << "in the first";
    EXPECT_EQ(first.state(), QProcess::Running);

    ::kill(static_cast<pid_t>(first.processId()), SIGTERM);
    ASSERT_TRUE(first.waitForFinished(-1));
    EXPECT_EQ(first.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first.exitCode(), 0);
}

} // namespace quillon
