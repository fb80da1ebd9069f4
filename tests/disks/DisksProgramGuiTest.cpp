#include "BackupSetup.h"
#include "EventLoop.h"
#include "PracticeTmutil.h"
#include "RunLoop.h"
#include "ScopedEnvironment.h"
#include "Setup.h"
#include "Task.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(DisksProgram, AsksTheToolItIsToldAndRunsOncePerUser)
{
    const PracticeTmutil practice(QStringLiteral(TMUTIL_EXECUTABLE));
    practice.write(u"noting"_s, "#!/bin/sh\necho \"$@\" >>\"$0.calls\"\n");
    QFile::setPermissions(practice.path(u"noting"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const ScopedEnvironment platform("QT_QPA_PLATFORM", "offscreen");
    const ScopedEnvironment settings("XDG_CONFIG_HOME", practice.path(u"settings"_s).toUtf8());
    const ScopedEnvironment tool("QUILLON_TMUTIL", practice.path(u"noting"_s).toUtf8());
    QProcess window;
    window.start(QStringLiteral(DISKS_EXECUTABLE), QStringList());
    ASSERT_TRUE(runUntil([&] { return QFile::exists(practice.path(u"noting.calls"_s)); }));
    EXPECT_EQ(QProcess::execute(QStringLiteral(DISKS_EXECUTABLE)), 0) << "the window is there already";
    window.terminate();
    ASSERT_TRUE(window.waitForFinished(-1));
    EXPECT_EQ(window.exitStatus(), QProcess::NormalExit);
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
