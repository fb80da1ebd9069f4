#include "BackupSetup.h"
#include "EventLoop.h"
#include "PracticeTmutil.h"
#include "QtRunLoop.h"
#include "Setup.h"
#include "Task.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(DisksProgram, AsksTheToolItIsToldAndRunsOncePerUser)
{
    const PracticeTmutil practice(QStringLiteral(TMUTIL_EXECUTABLE));
    practice.write(u"noting"_s, "#!/bin/sh\necho \"$@\" >>\"$0.calls\"\n");
    QFile::setPermissions(practice.path(u"noting"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, practice.path(u"settings"_s));
    environment.insert(u"QUILLON_TMUTIL"_s, practice.path(u"noting"_s));
    const auto start = [&environment](QProcess& program) {
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(DISKS_EXECUTABLE), QStringList());
    };
    QProcess first;
    start(first);
    const auto calls = [&practice] {
        QFile file(practice.path(u"noting.calls"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    ASSERT_TRUE(runUntil([&] { return calls().startsWith("destinationinfo -X\nlistsources -X\nlistexclusions -X\n"); }))
        << calls().toStdString();
    QProcess second;
    start(second);
    ASSERT_TRUE(second.waitForFinished(-1));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
    ::kill(static_cast<pid_t>(first.processId()), SIGTERM);
    ASSERT_TRUE(first.waitForFinished(-1));
    EXPECT_EQ(first.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first.exitCode(), 0);
}

TEST(DisksProgram, AndTheToolUnderstandEachOther)
{
    const PracticeTmutil practice(QStringLiteral(TMUTIL_EXECUTABLE));
    QtRunLoop runLoop;
    Task launcher;
    TmutilClient client(launcher, runLoop, practice.executable());
    const auto ask = [&client](const QStringList& arguments) {
        std::optional<TmutilAnswer> answer;
        client.call(arguments, [&answer](const TmutilAnswer& given) { answer = given; });
        runUntil([&answer] { return answer.has_value(); });
        return answer->success ? answer->output : answer->complaint.toUtf8();
    };
    practice.write(u"source/a.iso"_s, QByteArray(1500, 'x'));
    practice.write(u"disk/file"_s, {});
    EXPECT_EQ(readPaths(ask({u"listsources"_s, u"-X"_s})), QStringList(practice.source()));
    EXPECT_TRUE(readBackupDisks(ask({u"destinationinfo"_s, u"-X"_s}))->empty());
    ask({u"setdestination"_s, u"-a"_s, u"--"_s, practice.path(u"disk"_s)});
    const auto disk = [&] { return readBackupDisks(ask({u"destinationinfo"_s, u"-X"_s}))->at(0); };
    EXPECT_TRUE(disk().present && !disk().recoveryKeyKept && disk().bytesFree && !disk().lastBackup);
    EXPECT_TRUE(readUsage(ask({u"diskusage"_s, u"-X"_s}))->contains(disk().id));
    const auto key = readRecoveryKey(ask({u"recoverykey"_s, u"-X"_s, u"-d"_s, disk().id}));
    ask({u"recoverykey"_s, u"--kept"_s, key->identifier, u"-d"_s, disk().id});
    EXPECT_TRUE(disk().recoveryKeyKept);

    EXPECT_EQ(readOmission(ask({u"excludename"_s, u"--try"_s, u"-X"_s, u"--"_s, u"*.iso"_s}))->bytes, 1500);
    for (const auto& [word, value] : {std::pair{u"excludename"_s, u"-*.iso"_s},
                                      {u"excludelarger"_s, u"2"_s},
                                      {u"addexclusion"_s, practice.path(u"disk/file"_s)}})
        EXPECT_EQ(ask({word, u"--"_s, value}), QByteArray());
    const auto left = [&] { return exclusionEntries(*readExclusions(ask({u"listexclusions"_s, u"-X"_s}))); };
    EXPECT_EQ(left().size(), 3U);
    for (const ListEntry& entry : left())
        EXPECT_EQ(ask(exclusionRemoval(entry.id)), QByteArray());
    EXPECT_TRUE(left().empty());
    EXPECT_TRUE(ask({u"excludename"_s, u"--"_s, u"a/b"_s}).contains("is no name")) << "the tool's own words";
    EXPECT_EQ(ask({u"removedestination"_s, u"--"_s, disk().id}), QByteArray());
}

} // namespace quillon
