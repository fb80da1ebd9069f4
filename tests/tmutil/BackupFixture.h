#pragma once

#include "PracticeTmutil.h"

#include <gtest/gtest.h>
#include <iostream>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// Real backups of real files by our tmutil over a real restic. Most are scripts of a shell that knows a few words
/// more, because people call tmutil from one, too: each call that fails is told in the output, with its exit status.
class BackupIntegration : public testing::Test {
protected:
    /// While a script runs, somebody looks at the status, so that no completed backup waits for that.
    void expect(const QByteArray& script, const QByteArray& output) const
    {
        expectOutput(practice_.watch(u"/bin/sh"_s, {u"-c"_s, words() + QString::fromUtf8(script)}), output);
    }

    /// The worker does all that comes after a backup: nobody ends it.
    void expectUnwatched(const QByteArray& script, const QByteArray& output) const
    {
        expectOutput(runProgram(u"/bin/sh"_s, {u"-c"_s, words() + QString::fromUtf8(script)}), output);
    }

    /// In a name space of its own, where the script may mount what it likes; says so where this machine allows none.
    void expectWithMounts(const QByteArray& script, const QByteArray& output) const
    {
        QStringList arguments{u"--mount"_s};
        if (geteuid() != 0)
            arguments << u"--map-root-user"_s;
        const auto mount = arguments + QStringList{u"/bin/mount"_s, u"-t"_s, u"tmpfs"_s, u"none"_s, practice_.source()};
        if (runProgram(u"/usr/bin/unshare"_s, mount).status != 0) {
            std::cout << "NOT TESTED with a mounted file system: this machine allows no mounts\n";
            return;
        }
        arguments << u"/bin/sh"_s << u"-c"_s << words() + QString::fromUtf8(script);
        expectOutput(practice_.watch(u"/usr/bin/unshare"_s, arguments), output);
    }

    static void expectOutput(const Answer& answer, const QByteArray& output)
    {
        EXPECT_EQ(answer.output.toStdString(), output.toStdString()) << answer.error.toStdString();
    }

    QString words() const
    {
        return u"cd '%1'\n"_s.arg(practice_.path(u"."_s)) + QString::fromUtf8(R"sh(
PATH=$PWD:/usr/bin:/bin:/usr/sbin:/sbin
state=state/quillon-timemachine
told() { "$@" || echo "$2: $?"; }
tmutil() { told ./tmutil "$@"; }
back_up() { tmutil startbackup -b; }
restore() { tmutil restore "$(tmutil latestbackup)$PWD/$1" "$2"; }
use() { mkdir -p "$1" && tmutil setdestination -a "$1" >said; }
id_of() { ls "$1/Quillon.backups"; }
repository() { echo "$1/Quillon.backups/$(id_of "$1")"; }
by_hand() {
    key=config/quillon-timemachine/keys/$(id_of "$1").key repository=$(repository "$1"); shift
    restic -q -r "$repository" --no-cache --password-file "$key" "$@" >/dev/null
}
wait_for() {
    for turn in $(seq 1200); do eval "$1" >/dev/null 2>&1 && return; sleep 0.05; done
    echo "waited in vain for $1"; exit 1
}
runs() { tmutil status | grep -q 'Running = 1'; }
is_at() { tmutil status | grep -q "BackupPhase = $1"; }
verifies() { tmutil status | grep -q Verifying; }
cause() { tmutil status | sed -n 's/.* Cause = \(.*\);/\1/p'; }
start_long() { truncate -s 2G source/large && tmutil startbackup && wait_for 'is_at Copying'; }
worker() { sed -n '/<key>Worker/{n;s/[^0-9]//g;p}' ${1-.}/$state/run.plist; }
child_of() { echo $(cat /proc/$1/task/$1/children); }
list() { (cd "$1" && find . -mindepth 1 -printf '%P %m %T@ %l\n' | sort); }
same() { diff -r --no-dereference "$1" "$2" && [ "$(list "$1")" = "$(list "$2")" ] && echo same; }
# Root can do what others cannot: "user" calls for somebody without special rights, who owns what "give" gives.
give() { [ $(id -u) != 0 ] || chown -R -h 65534:65534 "$@"; }
user() { $([ $(id -u) != 0 ] || echo setpriv --reuid=65534 --regid=65534 --clear-groups) "$@" || echo "user: $?"; }
# Another computer, or another user's account. Its backups do not wait for somebody to look at the status, either.
computer() {
    mkdir -p $1/source && sed "s,$PWD/,$PWD/$1/,g" tmutil >$1/tmutil && chmod 755 $1/tmutil
    $1/tmutil addsource $1/source
}
back_up_on() {
    name=$1; shift
    "$@" $name/tmutil startbackup; wait_for "$name/tmutil status | grep -q Finishing"
    kill $(worker $name); wait_for "$name/tmutil status | grep -q 'Running = 0'"
}
)sh");
    }

    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
};

} // namespace quillon
