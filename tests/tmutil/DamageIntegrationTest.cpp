#include "BackupFixture.h"
#include "History.h"

namespace quillon {

/// Repositories that a disk has damaged.
class DamageIntegration : public BackupIntegration {
protected:
    void SetUp() override
    {
        id_ = practice_.addDisk(u"disk"_s);
        // What is stored in one file of data is lost with it: the small ones get another.
        expect(words_ + R"sh(
head -c 9000000 /dev/urandom >source/large; back_up
mkdir source/folder; echo small >source/small; echo another >source/folder/another
)sh",
               "");
    }

    const QByteArray words_ = R"sh(
large_pack() { find $(repository disk)/data -type f -printf '%s %p\n' | sort -n | tail -n 1 | cut -d ' ' -f 2; }
damage() { chmod u+w $1; printf damage | dd of=$1 bs=1 seek=1000 conv=notrunc 2>said; }
back_up_unended() { tmutil startbackup && wait_for '! runs'; }
)sh";
    QString id_;
};

TEST_F(DamageIntegration, WhatIsLostIsFoundNamedAndMendedByTheNextBackup)
{
    expectUnwatched(words_ + R"sh(
rm -f $(large_pack)
tmutil verify --all 2>said; cause
tmutil status | tr -d '\n ' | grep -cF "AffectedBackups=(\"$(tmutil latestbackup)\");"
back_up_unended
tmutil status | grep UnreadFiles # what is stored anew has been read
wait_for '[ -z "$(cause)" ]' # the worker looks whether that has helped
by_hand disk check --read-data && echo sound
)sh",
                    "verify: 14\nDamaged\n1\nsound\n");
}

TEST_F(DamageIntegration, ARepairTakesNothingSoundAwayAndComesToRest)
{
    const auto isAtRest = [this] {
        const auto damage = History(practice_.stateFolder()).damage(id_);
        return damage && damage->lasting;
    };
    expectUnwatched(words_ + R"sh(
mkdir source/pair; for name in one two; do head -c 6000000 /dev/urandom >source/pair/$name; done
by_hand disk backup --tag quillon --time '2020-01-01 10:00:00' $PWD/source
damage $(large_pack) # both are in it
rm -r source/pair; tmutil verify --all 2>said; back_up_unended
)sh",
                    "verify: 14\n");
    ASSERT_TRUE(eventually(isAtRest));
    EXPECT_FALSE(Verification::isDue(History(practice_.stateFolder()), id_));
    expect(R"sh(
tmutil status | grep -o 'tmutil deletebackup'
tmutil restore "$(tmutil listbackups | grep /2020-01-01)$PWD/source/pair" pair 2>said; ls pair | grep -cE '^(one|two)$'
)sh",
           "tmutil deletebackup\nrestore: 13\n1\n");
}

TEST_F(DamageIntegration, WhatCanBeReadIsRestoredAndTheRestNamed)
{
    expect(words_ + R"sh(
pack=$(large_pack); back_up; damage $pack
restore source all 2>said; grep -c /source/large said; grep small said; ls all
mkdir behind; : >behind/x; ln -s behind linked
restore source/folder linked/folder; ls behind
restore source/large large 2>said; ls -A | grep -e large -e '^.tmutil-'
)sh",
           "restore: 13\n1\nfolder\nlarge.incomplete\nsmall\nfolder\nx\nrestore: 13\nlarge.incomplete\n");
}

TEST_F(DamageIntegration, ADamagedOrLostRecordOfABackupIsToldAndKeepsNoOtherFromBeingMade)
{
    expect(R"sh(
records=$(repository disk)/snapshots
chmod u+w $records/*; truncate -s 10 $records/*; rm -r cache
back_up >said; cause; ls $(repository disk)/damaged | wc -l
back_up; cause # what is known is what was there then
rm -f $records/*
back_up >said; cause
tmutil deletebackup "$(tmutil latestbackup)"; back_up; cause # the user has deleted it
)sh",
           "BackupsLost\n1\nBackupsLost\n");
}

TEST_F(DamageIntegration, AFullOrReadOnlyDiskIsReadAllTheSame)
{
    expectWithMounts(R"sh(
mount -t tmpfs -o size=12M none disk && tmutil setdestination disk >said || exit
rm source/large; back_up; latest=$(tmutil latestbackup)
head -c 20000000 /dev/zero >disk/junk 2>said
restore source/small back; cat back; tmutil verify
mount -o remount,ro disk; tmutil verify; tmutil deletebackup "$latest"
mount -o remount,rw disk; tmutil deletebackup "$latest"
)sh",
                     "small\nNo damage was found.\nNo damage was found.\ndeletebackup: 73\n");
}

TEST_F(DamageIntegration, AVerificationFollowsABackupOnceAWeekAndGivesWayToTheNext)
{
    const auto nextSlice = [this] { return History(practice_.stateFolder()).nextSlice(id_); };
    ASSERT_TRUE(History::change(practice_.stateFolder(), [this](History& history) {
        history.setLastVerification(id_, history.lastVerification(id_).addDays(-7));
        history.setNextSlice(id_, {.tenth = 4});
    }));
    // Pipes that nobody writes to in the place of all files of data hold a restic that reads any.
    expectUnwatched(words_ + R"sh(
tmutil startbackup; wait_for 'is_at Finishing'
cp -r $(repository disk)/data data
for pack in $(find $(repository disk)/data -type f); do rm -f $pack; mkfifo $pack; done
wait_for verifies; runs # the application must not take it for a backup
tmutil verify 2>said; tmutil stopbackup; verifies
)sh",
                    "verify: 5\n");
    EXPECT_EQ(nextSlice(), Slice{.tenth = 4}) << "it has not been verified";
    expectUnwatched(words_ + R"sh(
./tmutil verify & verification=$!
wait_for verifies
rm -r $(repository disk)/data; mv data $(repository disk)/data
back_up_unended; wait $verification || echo $?; cause
)sh",
                    "8\n");
    EXPECT_TRUE(eventually([&] { return nextSlice() == (Slice{.tenth = 4, .part = 1, .parts = 4}); }))
        << "two were interrupted";
}

} // namespace quillon
