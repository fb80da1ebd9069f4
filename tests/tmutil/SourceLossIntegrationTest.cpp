#include "BackupFixture.h"
#include "History.h"

namespace quillon {

/// A source that held files and holds none now is most often a disk that is not mounted, and no reason to count what is
/// left as a backup.
class SourceLossIntegration : public BackupIntegration {
protected:
    void SetUp() override
    {
        id_ = practice_.addDisk(u"disk"_s);
        expect(words_ + R"sh(
echo file >source/file; mkdir second; echo only here >second/file; tmutil addsource second; back_up_as_user
)sh",
               "");
    }

    const QByteArray words_ = R"sh(
back_up_as_user() { give .; user ./tmutil startbackup -b; }
date_of_last() { tmutil destinationinfo -X | grep -A 1 '<key>LastBackup'; }
incomplete() {
    latest=$(tmutil latestbackup) date=$(date_of_last)
    back_up_as_user 2>said; cause
    [ "$latest" = "$(tmutil latestbackup)" ] && [ "$date" = "$(date_of_last)" ] || echo counted
    tmutil listbackups >list; grep -cxF "$latest" list; tail -n 1 list | grep -o '.incomplete$'
}
)sh";
    const QByteArray incomplete_ = "user: 12\nSourceLost\n1\n.incomplete\n";
    QString id_;
};

TEST_F(SourceLossIntegration, ALostSourceIsAFailureUntilItIsBackAndCostsNoBackup)
{
    expect(words_ + R"sh(
mv second aside; incomplete
mkdir elsewhere; ln -s $PWD/elsewhere second; incomplete # a link to nothing of what it held
rm second; mkdir second; incomplete
rmdir second; mv aside second; chmod 0 second; incomplete
chmod 755 second; back_up_as_user; cause
)sh",
           incomplete_.repeated(4));
}

TEST_F(SourceLossIntegration, ASourceLostWhileItIsReadIsNoticedAndOneThatIsGivenUpKeepsItsLastBackup)
{
    // Left out file by file: what is read of it is nothing, which shows only in the end.
    expect(words_ + R"sh(
tmutil addexclusion second/file; incomplete
tmutil retention --hourly 1 --daily 0 --weekly 0 >said; tmutil removesource second
held=$(tmutil latestbackup)
back_up_as_user; back_up_as_user
tmutil restore "$held$PWD/second/file" restored; cat restored
tmutil addsource second; incomplete # it is expected to hold something
tmutil removeexclusion second/file; back_up_as_user; cause
)sh",
           incomplete_ + "only here\n" + incomplete_);
}

TEST_F(SourceLossIntegration, ABackupThatWasCutOffBeforeItWasLookedAtIsLookedAtByTheNext)
{
    // What a worker leaves that is killed as soon as restic has ended.
    ASSERT_TRUE(History::change(practice_.stateFolder(), [this](History& history) {
        history.setUncheckedSince(id_, QDateTime::currentDateTimeUtc());
    }));
    // The first of the list may be of the same hour as the last.
    expect(words_ + R"sh(
mv second aside; mkdir second; by_hand disk backup --tag quillon $PWD/source $PWD/second
rmdir second; mv aside second; back_up_as_user
tmutil listbackups | tail -n 2 | sed 's/.*[0-9]//'
)sh",
           ".incomplete\n\n");
}

TEST_F(SourceLossIntegration, WhatBackupsLoseToAnotherFileSystemOrATagIsToldOfUntilTheUserDecides)
{
    const QByteArray told = "hidden\", which held files before, is on another file system and is not backed up\n"
                            "tagged\", which was backed up before, is tagged as a cache and is left out\n";
    expectWithMounts(R"sh(
cd source; mkdir hidden empty tagged; echo only here | tee hidden/file >tagged/file; cd ..; back_up
echo 'Signature: 8a477f597d28d172789f06886806bc55' | tee source/empty/CACHEDIR.TAG >source/tagged/CACHEDIR.TAG
mount -t tmpfs none source/hidden && mount -t tmpfs none source/empty || exit
echo far >source/hidden/far
for turn in 1 2; do back_up | grep -Eo '[a-z]+", which[^,]*, is [a-z ]+'; done
restored() { restore source restored; (cd restored; find . -type f | sort); rm -r restored; }
restored; tmutil listexclusions -a | grep -o 'source/hidden.*'
tmutil addsource source/hidden; tmutil addexclusion source/tagged; back_up; restored
)sh",
                     told + told +
                         "./file\n./tagged/CACHEDIR.TAG\nsource/hidden (another file system)\n"
                         "./file\n./hidden/far\n");
}

TEST_F(SourceLossIntegration, WhatNamesAndSizesLeaveOutIsToldBeforeItIsKept)
{
    expect(words_ + R"sh(
mkdir source/.b.iso third; printf 1234567890 >source/a.iso; printf 12345678901234567890 >source/.b.iso/inside
truncate -s 2000001 source/large; echo >source/kept.iso.txt; printf two >'source/ü.x'; echo >third/only.x
tmutil excludename --try '*.iso'; tmutil excludelarger --try 2
tmutil excludename a/b; tmutil excludename --try a/b; tmutil excludename ..
tmutil excludename --try -X '?.x' | grep -o '<integer>.*<'
tmutil excludename '*.iso'; tmutil excludelarger 2
tmutil excludename source # what a source is in, or is called, leaves it in
tmutil excludename '*.x'; tmutil addsource third
tmutil isexcluded source/a.iso source/large source/kept.iso.txt | cut -c -12
tmutil listexclusions -X | grep -o '<[a-z]*>[^<]\+'
tmutil excludename --try '*.iso'
back_up_as_user | wc -l; cause
restore source restored; ls -A restored
tmutil includename '*.iso'; tmutil includename '*.iso'
)sh",
           "2 files of 30 bytes in all would be left out.\n1 file of 2000001 bytes would be left out.\n"
           "excludename: 66\nexcludename: 66\nexcludename: 66\n<integer>3<\n<integer>1<\n"
           "[Excluded]  \n[Excluded]  \n[Included]  \n"
           "<key>LargestFile\n<integer>2000000\n<key>Names\n<string>*.iso\n<string>source\n<string>*.x\n<key>Paths\n"
           "0 files of 0 bytes in all would be left out.\n1\nMissingSource\nfile\nkept.iso.txt\nincludename: 10\n");
}

} // namespace quillon
