#include "BackupFixture.h"

namespace quillon {

TEST_F(BackupIntegration, ATreeComesBackByteForByte)
{
    expect(R"sh(
tree='source/Grüße 漢字'
mkdir -p "$tree" source/locked; : >source/empty; echo name >"$tree/naïve *[1]?.txt"
head -c 3000000 /dev/urandom >"$tree/plain"
ln -s 'Grüße 漢字/plain' source/link; ln -s nowhere source/dangling
echo in a folder that its owner may not write >source/locked/inside; chmod 555 source/locked
cp -a source before
use 'source/disk *[x]' # which is no part of the backup
back_up
[ "$(tmutil listbackups)" = "$(tmutil latestbackup)" ] && echo one
restore source restored; same before restored
restore source/locked locked; same before/locked locked; stat -c %a locked
restore source restored; same before restored
restore source/not/there other; ls other
# restic and the key alone do as well.
by_hand 'source/disk *[x]' restore latest --target by-hand; same before "by-hand$PWD/source"
latest=$(tmutil latestbackup)
tmutil deletebackup "$latest" /no/backup; tmutil listbackups | grep -cF "$latest" # all or none
tmutil deletebackup "$latest"; tmutil listbackups
)sh",
           "one\nsame\nsame\n555\nrestore: 7\nsame\nrestore: 6\nsame\ndeletebackup: 6\n1\nlistbackups: 6\n");
}

TEST_F(BackupIntegration, PathsAreFoundThroughLinksAndWithAnyBytes)
{
    expect(R"sh(
odd=$(printf 'source/Gr\374\337e.txt') # Latin 1, and what a pattern might take for it
echo wanted >"$odd"; echo another >'source/Gr??e.txt'; ln -s . link
use disk; back_up
restore "$odd" odd; cat odd
restore link/source 'through a link'; find 'through a link' -type f | wc -l
)sh",
           "wanted\n2\n");
}

TEST_F(BackupIntegration, ARestoreThatEndsEarlyLeavesNothingBesideItsTargetOrIsClearedAwayByTheNext)
{
    expect(R"sh(
mkdir -p 'source/locked/locked too'; echo found again >'source/locked/locked too/file'
chmod 555 'source/locked/locked too' source/locked
use disk; truncate -s 2G source/large; give .
user ./tmutil startbackup -b
latest=$(tmutil latestbackup)$PWD/source
user ./tmutil restore "$latest/locked/locked too/file" restored; cat restored
for signal in TERM HUP KILL; do
    user ./tmutil restore "$latest" whole & restore=$!
    wait_for 'ls -d .tmutil-*'
    process=$(child_of $restore) child=$(child_of $(child_of $restore))
    kill -$signal $process; wait $restore; wait_for "! kill -0 $child"
    ls -d .tmutil-* whole | wc -l
done
mkdir .tmutil-restore-mine # no restore has made it
user ./tmutil restore "$latest/not there" other
ls -d .tmutil-*
)sh",
           "found again\nuser: 8\n0\nuser: 8\n0\nuser: 137\n1\nuser: 6\n.tmutil-restore-mine\n");
}

TEST_F(BackupIntegration, AResticThatSaysInJsonWhatEndedItIsUnderstoodAndALockThatLastsIsWaitedFor)
{
    // restic 0.17 and later, written from its documentation ("Scripting"), in front of the one that is installed.
    practice_.write(u"newer"_s, R"sh(#!/bin/sh
end() { echo '{"message_type":"exit_error","code":'$1',"message":"'"$2"'"}' >&2; exit $1; }
case "$*" in
*' backup '*)
    [ -e '$folder/locked' ] && {
        [ -e '$folder/asked' ] && rm -f '$folder/locked'
        touch '$folder/asked'
        end 11 'unable to create lock in backend: repository is already locked by PID 1'
    }
    [ -e '$folder/forgetful' ] && { /usr/bin/restic "$@"; rm -f snapshots/*; exit; }
    [ -e '$folder/broken' ] && end 1 'Fatal: unable to save snapshot: something new' ;;
*' unlock') end 1 'sends SIGHUP to whichever process bears the number in a lock' ;;
esac
exec /usr/bin/restic "$@"
)sh"_ba.replace("$folder", practice_.path(u"."_s).toUtf8()));
    expectWithMounts(R"sh(
mount -t tmpfs none /usr/local/bin && cp newer /usr/local/bin/restic && chmod 755 /usr/local/bin/restic || exit
use disk; echo file >source/file
touch locked; back_up; ls locked
touch forgetful; back_up 2>&1
rm forgetful; touch broken; back_up 2>&1
)sh",
                     "tmutil: The backup was written, but cannot be found on \"disk\".\nstartbackup: 1\n"
                     "tmutil: restic: unable to save snapshot: something new\nstartbackup: 1\n");
}

TEST_F(BackupIntegration, ARunningBackupHoldsItsDiskAndNothingOfItsCallerAndEndsAtAStop)
{
    expect(
        R"sh(
use disk; use other; start_long
tmutil removedestination $(id_of disk) 2>said; grep -c '^tmutil: ' said
tmutil destinationinfo | grep -c "^ID.*$(id_of disk)"
worker=$(worker)
[ $(cut -d ' ' -f 6 /proc/$worker/stat) = $worker ] && echo in a session of its own
for descriptor in 0 1 2; do readlink /proc/$worker/fd/$descriptor; done
tr '\0' '\n' </proc/$(child_of $worker)/environ | cut -d = -f 1 | sort
tmutil stopbackup; wait_for '! runs'
cause; tmutil latestbackup
ls $(repository disk)/locks; by_hand disk check && echo sound
# A stop once the backup is written is no failure.
start_long
pipe=$(repository disk)/snapshots/$(printf %064d 0); mkfifo $pipe
exec 3>$pipe # once somebody reads the list of backups, who waits for more of it
tmutil stopbackup; wait_for '! runs'
exec 3>&-; rm $pipe
cause; tmutil latestbackup | wc -l
)sh",
        "removedestination: 5\n1\n1\nin a session of its own\n/dev/null\n/dev/null\n/dev/null\n"
        "HOME\nPATH\nRESTIC_CACHE_DIR\nRESTIC_PASSWORD_FILE\nRESTIC_PROGRESS_FPS\nTMPDIR\nlatestbackup: 6\nsound\n1\n");
}

TEST_F(BackupIntegration, AKilledWorkerIsNotRunningAndItsBackupCountsOnceItIsWritten)
{
    expect(R"sh(
use disk; start_long
worker=$(worker) child=$(child_of $(worker))
kill -9 $worker; wait_for "! kill -0 $worker"
runs && echo runs; cause
wait_for "! kill -0 $child"
# As after a power loss: restic had no time to take its lock away.
start_long
worker=$(worker) child=$(child_of $(worker))
kill -STOP $worker; kill -9 $child; kill -9 $worker; wait_for "! kill -0 $worker"
[ "$(ls $(repository disk)/locks)" ] && echo locked
truncate -s 5 source/large; back_up
cause; ls $(repository disk)/locks; by_hand disk check && echo sound
# One that only cleans up has made a backup, whatever a damaged disk has left of the history.
tmutil deletebackup "$(tmutil latestbackup)"; echo damaged >$state/history.plist; rm -f $state/history-*
start_long
pipe=$(repository disk)/locks/$(printf %064d 0); mkfifo $pipe # holds restic, which removes locks that were left
wait_for 'is_at ThinningPostBackup'
kill -9 $(worker); wait_for '! runs'
rm $pipe
cause; tmutil destinationinfo -X | grep -c LastBackup; tmutil latestbackup | wc -l
)sh",
           "Interrupted\nlocked\nsound\n1\n1\n");
}

TEST_F(BackupIntegration, TwoUsersBackUpToOneDisk)
{
    expect(R"sh(
use disk; echo mine >source/mine; back_up
chmod o+x . # whoever mounts a disk for all lets all in
for name in second third; do computer $name; echo theirs >$name/source/theirs; give $name; done
user second/tmutil setdestination disk >said
back_up_on second user
ls disk/Quillon.backups | wc -l; tmutil listbackups | wc -l
[ $(id -u) = 0 ] && chmod 755 disk/Quillon.backups || chmod 555 disk/Quillon.backups
user third/tmutil setdestination disk 2>said; grep -c '/disk/Quillon.backups/.*Permission denied' said
)sh",
           "2\n1\nuser: 73\n1\n");
}

TEST_F(BackupIntegration, UnreadableFilesLeaveACompletedBackupWithARemark)
{
    expect(R"sh(
use disk; echo yes >source/readable; echo no >source/secret; chmod 0 source/secret; give .
user ./tmutil startbackup -b
latest=$(tmutil latestbackup)
tmutil status | grep -o 'UnreadFiles = .*;'
[ "$(tmutil listunread "$latest")" = "$PWD/source/secret" ] && echo named
tmutil log | grep -o 'Completed.*1 not read.*' | grep -cF "$latest"
tmutil diskusage | grep -o 'bytes are free'; tmutil diskusage | grep -cF "$latest  1 files, "
tmutil listunread /no/backup
)sh",
           "One file could not be read.\nUnreadFiles = 1;\nnamed\n1\nbytes are free\n1\nlistunread: 6\n");
}

TEST_F(BackupIntegration, EveryRefusalHasAStatusAndALineOfItsOwn)
{
    expect(R"sh(
refused() { tmutil "$@" 2>said; [ $(grep -c '^tmutil: ' said) = 1 ] && [ $(wc -l <said) = 1 ] || cat said; }
refused startbackup; refused listbackups; refused startbackup --now; refused setdestination missing
use disk
refused latestbackup; refused startbackup -d unknown; refused removesource .
# An unplugged disk whose mount point stays behind, empty.
mv disk unplugged; mkdir disk
refused startbackup; refused startbackup -d $(id_of unplugged)
ls -A disk; tmutil destinationinfo | grep -c "$(id_of unplugged)"
for name in configuration configuration-previous; do echo '<plist><dict>' >config/quillon-timemachine/$name.plist; done
refused startbackup; cause
tmutil setdestination unplugged >said; tmutil destinationinfo | grep -c "$(id_of unplugged)" # the way on
)sh",
           "startbackup: 2\nlistbackups: 2\nstartbackup: 64\nsetdestination: 66\n"
           "latestbackup: 6\nstartbackup: 3\nremovesource: 10\nstartbackup: 4\nstartbackup: 4\n1\n"
           "startbackup: 78\nConfigurationDamaged\n1\n");
}

TEST_F(BackupIntegration, WhatIsExcludedIsLeftOutAndNothingElse)
{
    expect(R"sh(
use disk
set -- 'a*b [c]?' 'two
lines ' '$HOME' 'back\slash' '!no' '𠂀'
for name in "$@"; do mkdir "source/$name"; echo left out >"source/$name/file"; tmutil addexclusion "source/$name"; done
for name in 'a*b [c]?d' 'axb c1' two backslash no; do mkdir "source/$name"; echo kept >"source/$name/file"; done
tmutil listexclusions -X | grep -cF -e 'a*b [c]?<' -e 'lines <'
tmutil isexcluded 'source/$HOME/file' source/two disk | cut -c -12
back_up; restore source restored; ls restored
)sh",
           "2\n[Excluded]  \n[Included]  \n[Excluded]  \na*b [c]?d\naxb c1\nbackslash\nno\ntwo\n");
}

} // namespace quillon
