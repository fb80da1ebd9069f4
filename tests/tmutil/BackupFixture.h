#pragma once

#include "PracticeTmutil.h"
#include "ProcessLock.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <iostream>
#include <optional>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// Real backups of real files by our tmutil over a real restic.
class BackupIntegration : public testing::Test {
protected:
    int call(const QStringList& arguments) const { return practice_.run(arguments).status; }

    /// Starts a backup that lasts, and waits until it copies.
    void startLongBackup()
    {
        practice_.writeLargeFile();
        ASSERT_EQ(call({u"startbackup"_s}), 0);
        ASSERT_TRUE(eventually([this] { return practice_.phase() == "Copying"_L1; }));
    }

    bool isRunning() const { return practice_.status().value(u"Running"_s).toString() == "1"_L1; }

    /// A folder's owner is a user without special rights from now on, who calls tmutil by commandOf(): root can do what
    /// others cannot.
    void giveToOrdinaryUser(const PracticeTmutil& practice) const
    {
        if (geteuid() == 0) {
            ASSERT_EQ(
                runProgram(u"/usr/bin/chown"_s, {u"-R"_s, u"-h"_s, u"65534:65534"_s, practice.path(u"."_s)}).status, 0);
        }
    }
    static QStringList commandOf(const PracticeTmutil& practice, const QStringList& arguments)
    {
        QStringList command;
        if (geteuid() == 0)
            command = {u"/usr/bin/setpriv"_s, u"--reuid=65534"_s, u"--regid=65534"_s, u"--clear-groups"_s};
        return command << practice.executable() << arguments;
    }
    static Answer callAsOrdinaryUser(const PracticeTmutil& practice, const QStringList& arguments)
    {
        const QStringList command = commandOf(practice, arguments);
        return practice.watch(command.first(), command.mid(1));
    }

    /// Runs a script that may mount what it likes; users who are not root become it in a name space of their own. Says
    /// so where this machine allows no mounts: nothing is returned then.
    std::optional<Answer> runWhereMountsAreAllowed(const QString& script) const
    {
        QStringList arguments{u"--mount"_s};
        if (geteuid() != 0)
            arguments << u"--map-root-user"_s;
        if (runProgram(u"/usr/bin/unshare"_s,
                       arguments + QStringList{u"/bin/mount"_s, u"-t"_s, u"tmpfs"_s, u"none"_s, practice_.source()})
                .status != 0) {
            std::cout << "NOT TESTED with a mounted file system: this machine allows no mounts\n";
            return std::nullopt;
        }
        return practice_.watch(
            u"/usr/bin/unshare"_s,
            arguments + QStringList{u"/bin/sh"_s, u"-c"_s, u"PATH=/usr/bin:/bin:/usr/sbin:/sbin\n"_s + script});
    }

    /// What a restore would leave beside its target.
    QStringList hiddenFolders() const
    {
        return QDir(practice_.path(u"."_s)).entryList({u".tmutil-*"_s}, QDir::Dirs | QDir::Hidden);
    }

    QString failureCause() const
    {
        return practice_.status().value(u"LastFailure"_s).toMap().value(u"Cause"_s).toString();
    }

    pid_t worker() const { return ProcessLock::holder(practice_.stateFolder() + "/worker.lock"_L1).value_or(0); }

    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
};

inline pid_t childOf(pid_t process)
{
    QFile children(u"/proc/%1/task/%1/children"_s.arg(process));
    return children.open(QIODevice::ReadOnly) ? children.readAll().trimmed().toInt() : 0;
}

} // namespace quillon
