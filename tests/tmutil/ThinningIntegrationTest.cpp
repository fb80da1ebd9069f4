#include "BackupFixture.h"

namespace quillon {

/// A full disk would stay full: thinning comes after copying, and no copy can be completed.
using ThinningIntegration = BackupIntegration;

/// This one is full of other things, so that a twentieth of it cannot be made free; what a backup needs can.
TEST_F(ThinningIntegration, AFullDiskIsGivenTheRoomItNeedsByWhatIsMissedLeast)
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
                     "tmutil: The backup disk is full. The disk was full, and old backups were removed.\n"
                     "startbackup: 1\nTODAY\nNoSpace\n");
}

TEST_F(ThinningIntegration, RoomIsGivenBackOnceAWeek)
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
