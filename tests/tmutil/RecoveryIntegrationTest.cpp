#include "BackupFixture.h"

namespace quillon {

/// The way back when the computer is lost, and disks that come back to one that has forgotten them.
class RecoveryIntegration : public BackupIntegration {
protected:
    const QByteArray words_ = R"sh(
key_in() { sed -n 's/^    \([^ ]*\)$/\1/p'; }
adopt() { echo "$2" | $1/tmutil adopt disk >said || echo "adopt: $?"; }
told_of() { $1/tmutil destinationinfo -X | grep -c "<key>$2"; }
keys() { ls $(repository disk)/keys; }
)sh";
};

TEST_F(RecoveryIntegration, ANewComputerTakesTheBackupsUpWithWhatWasWrittenDown)
{
    expect(words_ + R"sh(
use disk; key=$(key_in <said); echo of years of work >source/file; back_up
tmutil setdestination disk >said; key_in <said; grep -o 'is on the same disk as' said # the key is shown once
told_of . RecoveryKeyMissing # no person may have seen it
keys >before
for option in '' -X; do ./tmutil recoverykey $option >/dev/full || echo "unseen: $?"; keys | cmp - before; done
computer unseen; adopt unseen $key # one that was not shown replaces none
renewed=$(tmutil recoverykey | key_in); told_of . RecoveryKeyMissing
computer other; adopt other $key # it has been replaced
told_of other ID
adopt other "$(echo $renewed | tr A-Z- 'a-z ')"; told_of other LastBackup
other/tmutil restore "$(other/tmutil latestbackup)$PWD/source" other/restored; cat other/restored/file
echo more >other/source/more; back_up_on other # goes on with them
tmutil latestbackup | wc -l # the first computer's key opens them as before
)sh",
           "is on the same disk as\n1\nunseen: 73\nunseen: 73\n0\nadopt: 15\n0\n1\n"
           "of years of work\n1\n");
}

TEST_F(RecoveryIntegration, AKeyThatAProgramShowsCountsOnceTheUserHasKeptIt)
{
    expect(words_ + R"sh(
offer() { tmutil recoverykey -X -d $id >$1; }
field() { grep -A 1 "<key>$2<" $1 | sed -n 's/.*<string>\(.*\)<.*/\1/p'; }
use disk; key=$(key_in <said) id=$(id_of disk); offer first
told_of . RecoveryKeyMissing # shown is not kept
computer a; adopt a $key # what may have been written down before is good until then
# While a backup runs; it is to another disk, which lacks one, too.
use other; truncate -s 2G source/large; tmutil startbackup -d $(id_of other); wait_for 'is_at Copying'
tmutil recoverykey --kept 00000000 -d $id; told_of . RecoveryKeyMissing
tmutil recoverykey --kept $(field first KeyID) -d $id; told_of . RecoveryKeyMissing
tmutil stopbackup
computer b; adopt b $key
# One that is looked at and not kept changes nothing, however often; restic tries no more than twenty keys.
kept=$(keys | grep ^$(field first KeyID))
for copy in 10 11 12 13 14 15 16 17; do
    cp $(repository disk)/keys/$kept $(repository disk)/keys/$copy$(echo $kept | cut -c 3-)
done
wait_for '! runs'; offer second; keys | wc -l # two computers', the kept one, the new one
told_of . RecoveryKeyMissing
for key in first second; do computer $key.opens; adopt $key.opens $(field $key RecoveryKey); done
)sh",
           "1\nrecoverykey: 15\n2\n1\nadopt: 15\n4\n1\n");
}

TEST_F(RecoveryIntegration, ARepositoryMadeByHandIsTakenUpAndItsOwnBackupsAreKept)
{
    expect(R"sh(
use disk; echo of years of work >source/file
by_pass_phrase() { restic -q -r 'hand made' --no-cache --password-command "/bin/echo 'a pass phrase'" "$@" >said; }
by_pass_phrase init
for time in 10:00:00 10:30:00; do by_pass_phrase backup --host elsewhere --time "2020-01-01 $time" $PWD/source; done
echo 'a pass  phrase' | tmutil adopt 'hand made'
echo 'a pass phrase' | tmutil adopt 'hand made' | grep -o '/elsewhere/2020-01-01-103000". Of this computer it has none'
tmutil removedestination $(id_of disk)
tmutil destinationinfo -X | grep LastBackup # this computer has made none
back_up; tmutil listbackups >list; grep -c /2020-01-01-10 list; wc -l <list
)sh",
           "adopt: 15\n/elsewhere/2020-01-01-103000\". Of this computer it has none\n2\n3\n");
}

TEST_F(RecoveryIntegration, ALostKeyOrConfigurationIsNeverReplacedByOneThatOpensNothing)
{
    expect(words_ + R"sh(
use disk; key=$(key_in <said) file=config/quillon-timemachine/keys/$(id_of disk).key; mv $file copy
tmutil setdestination disk 2>said; grep -o 'tmutil adopt' said; ls $file
for command in listbackups latestbackup verify recoverykey; do
    tmutil $command 2>said; grep -q "$PWD/$file" said && echo named
done
adopt . $key; back_up
mv $(repository disk)/config kept
for command in listbackups verify 'startbackup -b'; do
    tmutil $command 2>said; grep -q '"config" is missing. Put it back' said && echo named
done
ls $(repository disk)/config
)sh",
           "setdestination: 15\ntmutil adopt\nlistbackups: 15\nnamed\nlatestbackup: 15\nnamed\nverify: "
           "15\nnamed\nrecoverykey: 15\nnamed\n"
           "listbackups: 1\nnamed\nverify: 1\nnamed\nstartbackup: 1\nnamed\n");
}

TEST_F(RecoveryIntegration, ALockOfAProcessThatDiedIsNotInTheWay)
{
    // A pipe that nobody writes to holds restic, which has its lock by then.
    expect(R"sh(
use disk; echo of years of work >source/file; back_up
pipe=$(repository disk)/index/$(printf %064d 0) locks=$(repository disk)/locks; mkfifo $pipe
restic -q -r $(repository disk) --no-cache --password-file config/quillon-timemachine/keys/$(id_of disk).key prune &
wait_for "ls $locks | grep -E '^.{64}$'"
kill -9 $!; wait $!; rm $pipe; cp -r $locks locks
locked() { cp -n locks/* $locks; }
locked; tmutil restore "$(tmutil latestbackup)" restored; ls restored | wc -l
locked; tmutil recoverykey >said
pack=$(find $(repository disk)/data -type f | head -n 1); chmod u+w $pack; echo damage >>$pack
tmutil verify --all 2>said
locked; back_up >said # which repairs
)sh",
           "1\nverify: 14\n");
}

TEST_F(RecoveryIntegration, ADiskIsKnownWhereverItIsMountedAndNotOnceItHasBeenEmptied)
{
    expect(words_ + R"sh(
use disk; echo of years of work >source/file; back_up
last() { tmutil destinationinfo -X | grep -A 1 LastBackup | sed -n 's/.*<date>\(.*\)<.*/\1/p' | xargs date +%s -d; }
date=$(last); mv disk elsewhere
rm $state/history.plist # the disk itself tells
use elsewhere; tmutil destinationinfo | grep -o '/elsewhere$'; tmutil destinationinfo | grep -c '^ID  '
difference=$(($(last) - date)); [ ${difference#-} -lt 600 ] || echo "off by $difference"
repository=$(repository elsewhere); rm -r $repository; mkdir $repository
back_up 2>&1 | grep -oe 'are gone' -e 'startbackup: 1'
tmutil setdestination elsewhere >said; back_up # the user has said so
rm -r elsewhere/Quillon.backups; mkdir -p elsewhere/lost+found; : >elsewhere/lost+found/x
tmutil startbackup 2>&1 | grep -o 'has been erased'
)sh",
           "/elsewhere\n1\nare gone\nstartbackup: 1\nhas been erased\n");
}

} // namespace quillon
