#include "BackupFixture.h"

namespace quillon {

/// Backup disks that others have prepared, that are taken away, that are full, or that are not what they were.
using BackupDiskIntegration = BackupIntegration;

TEST_F(BackupDiskIntegration, WhatALinkOnTheDiskLeadsToIsLeftAlone)
{
    expect(R"sh(
mkdir -p home/folder; echo years of work >'home/only copy'; echo too >home/folder/file; cp -a home before
use disk; own=$(repository disk)
attempt() {
    echo "$1:"
    for call in 'startbackup -b' 'setdestination disk'; do ./tmutil $call >/dev/null 2>said || echo refused; done
    same before home
}
# Without a "config" the repository is made anew, in a folder beside its own.
ln -s $PWD/home $own.new; attempt beside
mv $own/data data; ln -s $PWD/home $own/data; attempt within
rm $own/data; mv data $own/data; attempt mended
ln -s $PWD/home $own/data/link; attempt 'where files of data go'
rm $own/data/link
for replaced in $own disk/Quillon.backups; do
    mv $replaced aside; ln -s $PWD/home $replaced; attempt 'in the place of a folder'
    rm $replaced; mv aside $replaced
done
[ $(id -u) = 0 ] || exit
chown 65534:65534 $own; attempt "another user's"
)sh",
           QByteArray("beside:\nsame\nwithin:\nrefused\nrefused\nsame\nmended:\nsame\n"
                      "where files of data go:\nrefused\nrefused\nsame\n"
                      "in the place of a folder:\nrefused\nrefused\nsame\n"
                      "in the place of a folder:\nrefused\nrefused\nsame\n") +
               (geteuid() == 0 ? "another user's:\nrefused\nrefused\nsame\n" : ""));
}

TEST_F(BackupDiskIntegration, ADiskTakenAwayDuringABackupHasNoBackupAndNothingIsWrittenInItsPlace)
{
    expect(R"sh(
use disk; start_long
mv disk unplugged; mkdir disk; wait_for '! runs'
cause; find disk -mindepth 1; tmutil destinationinfo -X | grep -e LastBackup -e MountPoint
)sh",
           "DestinationMissing\n");
    // A mount point that everyone may write to, and a disk pulled out of it.
    expectWithMounts(R"sh(
mkdir mounted && chmod 777 mounted && mount -t tmpfs none mounted || exit
tmutil setdestination mounted >said; start_long
umount -l mounted; wait_for '! runs'
cause; find mounted -mindepth 1
)sh",
                     "DestinationMissing\n");
}

TEST_F(BackupDiskIntegration, ADiskThatCannotBeReadOrIsACopyHidesNoOther)
{
    expect(R"sh(
use disk; echo file >source/file; back_up; tmutil listbackups >before
use .; rm -r Quillon.backups; cp -r disk/Quillon.backups .
tmutil setdestination -a .
tmutil destinationinfo | grep -c "$PWD/disk$"
use other; echo garbage >$(repository other)/config
tmutil listbackups 2>said | cmp - before; grep -c '^tmutil: other: ' said
)sh",
           "setdestination: 66\n1\n1\n");
}

TEST_F(BackupDiskIntegration, ABackupThatBeginsAsItsDiskIsRemovedIsNotMade)
{
    expect(R"sh(
configuration=config/quillon-timemachine/configuration.plist
use other; cp $configuration without; use disk
start_long; worker=$(worker); kill -STOP $worker
rm $state/run.plist # whose lock it is, and for which disk, cannot be told
tmutil removedestination $(id_of other) 2>said
./tmutil runbackup -d $(id_of disk) & backup=$!
wait_for "ls -l /proc/$backup/fd | grep worker.lock"
cp without $configuration; kill -9 $worker
wait $backup; echo $?
tmutil removedestination $(id_of other)
)sh",
           "removedestination: 5\n3\n");
}

TEST_F(BackupDiskIntegration, TheSizeOfTheBackupsIsThatOfTheUsersOwnFiles)
{
    expect(R"sh(
use disk; use away; mv away unplugged # of a disk that is not there nothing is known
own=$(repository disk); mkdir -p $own/data/00 disk/Quillon.backups/another-user
for file in $own/data/00/$(printf %064d 0) disk/Quillon.backups/another-user/data disk/mine; do
    head -c 300000 /dev/zero >$file
done
ln -s $PWD/disk $own/link
tmutil diskusage -X >usage
grep -c '<key>ID' usage; grep -c "$(id_of disk)" usage; grep -A 1 '<key>Bytes<' usage | grep -oE '>3[0-9]{5}<' | wc -l
)sh",
           "1\n1\n1\n");
}

TEST_F(BackupDiskIntegration, AFullDiskUnderTheToolsOwnFilesIsTold)
{
    expectWithMounts(R"sh(
use disk; mkdir -p $state
mount -t tmpfs -o size=64k none $state && head -c 100000 /dev/zero >$state/filler 2>said
tmutil startbackup 2>&1 | grep -o 'is full'
cause; tmutil destinationinfo | grep -c 'Mount Point'
)sh",
                     "is full\nNoStateSpace\n1\n");
}

// Thinning comes after copying, and no copy can be completed on a full disk. This one is full of other things, so that
// a twentieth of it cannot be made free; what a backup needs can.
TEST_F(BackupDiskIntegration, AFullDiskIsGivenTheRoomItNeedsByWhatIsMissedLeast)
{
    // Three backups of 2 MB fit; the rules keep all.
    expectWithMounts(R"sh(
mkdir disk && mount -t tmpfs -o size=100m none disk || exit
random() { head -c $2 /dev/urandom >source/$1; }
back_up_and_list() {
    back_up 2>&1 | sed 's/".*"/NAME/; s/[0-9]* old backups, from NAME,/old backups/'
    tmutil listbackups | sed 's,.*/\(20..\)-.*,\1,; s,^20[^0].,TODAY,' | sort -u
}
use disk; echo small >source/small; back_up
for year in 2001 2002 2003; do
    random data 2000000; by_hand disk backup --tag quillon --time "$year-01-01 10:00:00" $PWD/source
done
head -c 100000000 /dev/zero >disk/other 2>said; random data 2000000; back_up_and_list
random much 20000000; back_up_and_list; cause
)sh",
                     "The disk was full, and the backup NAME was removed.\n2002\n2003\nTODAY\n"
                     "tmutil: There is no room left for backups. The disk was full, and old backups were removed.\n"
                     "startbackup: 1\nTODAY\nNoSpace\n");
}

TEST_F(BackupDiskIntegration, RoomIsGivenBackOnceAWeek)
{
    expect(R"sh(
back_up_anew() { head -c 3000000 /dev/urandom >source/data; back_up; }
used() { find disk -type f -path '*/data/*' -printf '%s\n' | awk '{ sum += $1 } END { print int(sum / 1000000) }'; }
use disk; back_up_anew; back_up_anew; back_up_anew; used
sed -i '/<key>LastPrune/{n;s/>20[0-9]*/>2020/}' $state/history.plist; grep -c '>2020-' $state/history.plist
back_up; [ $(used) -lt 7 ] && echo less # the hour may have turned once, so that two backups are kept
grep -c '>2020-' $state/history.plist; by_hand disk check && tmutil latestbackup | wc -l
)sh",
           "9\n1\nless\n0\n1\n");
}

} // namespace quillon
