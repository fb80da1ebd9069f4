#include "BackupFixture.h"

#include <sys/stat.h>
#include <sys/xattr.h>

namespace quillon {

/// What becomes of a restore where something is in its way.
class RestoreIntegration : public BackupIntegration {
protected:
    void SetUp() override { practice_.addDisk(u"disk"_s); }

    const QByteArray words_ = R"sh(
here=$PWD/source; there() { echo "$(tmutil latestbackup)$here/$1"; }
names() { (cd "$1"; ls -A | sed 's/restored [0-9]*-[0-9]*-[0-9]* [0-9]*/restored DATE/'); }
event() { sed -n "s,$PWD,,g;s/\"source\":\"[^\"]*\"//;/\"event\":\"$1\"/p"; }
hold() { cp -r $(repository disk)/data data; for pack in $(find $(repository disk)/data -type f); do rm -f $pack; mkfifo $pack; done; }
)sh";
};

TEST_F(RestoreIntegration, WhatIsInTheWayIsTreatedAsAskedFor)
{
    expect(
        words_ + R"sh(
mkdir -p source/folder to; echo old >source/a.txt; echo in >source/folder/in; ln -s .. source/up; back_up
restore_all() { tmutil restore $1 $2 "$(there a.txt)" "$(there folder)" "$(there up)" $3; }
restore_all --skip -- to | grep -c ^Restored; names to
echo new >to/a.txt; touch to/folder/new
restore_all --skip -- to | grep -c ^Skipped; cat to/a.txt
restore_all --keep-both -- to >said; names to
restore_all --replace -- to >said; cat to/a.txt; names to/folder; readlink to/up; names to | wc -l
echo in place; echo new >source/a.txt; mv source/folder gone; echo precious >beside
restore_all --in-place 2>&1 | tail -n 2 | sed "s,$PWD,,"
restore_all --in-place --replace >said; cat source/a.txt beside; ls source/folder
chmod 750 gone; rm -r source/folder; mv gone source/folder; touch source/folder/later; back_up; rm -r source/folder
tmutil restore --in-place "$(there folder/in)" >said; ls source/folder; stat -c %a source/folder
mkdir way; echo precious >way/a.txt; ln -s "$PWD/source/a.txt" way/b; tmutil restore --replace "$(tmutil latestbackup)$PWD/way/b" way >said
cat way/a.txt; [ -f way/b ] && [ ! -h way/b ] && echo replaced
tmutil restore --in-place --replace "$(tmutil latestbackup)" 2>said; find . -name '.tmutil-restore*'
)sh",
        "3\na.txt\nfolder\nup\n3\nnew\na (restored DATE).txt\na.txt\nfolder\nfolder (restored DATE)\nup\nup (restored "
        "DATE)\nold\nin\n..\n6\nin place\ntmutil: 1 of 3 were restored.\nrestore: "
        "13\nold\nprecious\nin\nin\n750\nprecious\nreplaced\n"
        "restore: 64\n");
}

TEST_F(RestoreIntegration, NothingIsReplacedByWhatIsDamaged)
{
    expect(words_ + R"sh(
mkdir source/folder to; head -c 9000000 /dev/urandom >source/folder/large; back_up
mkdir to/folder; echo mine >to/folder/large
pack=$(find $(repository disk)/data -type f -printf '%s %p\n' | sort -n | tail -n 1 | cut -d ' ' -f 2)
chmod u+w $pack; printf damage | dd of=$pack bs=1 seek=1000 conv=notrunc 2>said
tmutil restore --json --replace "$(there folder)" to >events 2>said; tail -n 1 events; event failed <events | grep -c '"cause":"Damaged".*restored 2.*damaged in the backup'
cat to/folder/large; names 'to'; names to/folder*restored*
)sh",
           "restore: 13\n1\nmine\nfolder\nfolder (restored DATE)\nlarge.incomplete\n");
}

TEST_F(RestoreIntegration, AStopLeavesAllAsItWas)
{
    // Pipes that nobody writes to in the place of all files of data hold a restic that reads any.
    expect(words_ + R"sh(
mkdir -p source/folder; echo old >source/folder/file; back_up; echo new >source/folder/file; hold
./tmutil restore --json --replace --in-place "$(there folder)" >events & restore=$!
wait_for 'ls -d source/.tmutil-restore-*/tree0'; kill $restore; wait $restore || echo $?
cat source/folder/file; names source; event failed <events | grep -c stopped; event 'done' <events
)sh",
           "8\nnew\nfolder\n1\n{\"event\":\"done\",\"failed\":1,\"restored\":0,\"skipped\":0}\n");
}

TEST_F(RestoreIntegration, AttributesTimesAndHolesComeBack)
{
    practice_.write(u"source/folder/file"_s, "contents");
    const auto attribute = [](const QString& path) {
        std::array<char, 16> value{};
        getxattr(path.toUtf8().constData(), "user.colour", value.data(), value.size());
        return std::string(value.data());
    };
    const QString file = practice_.path(u"source/folder/file"_s);
    setxattr(file.toUtf8().constData(), "user.colour", "green", 5, 0);
    expect(words_ + R"sh(
truncate -s 3M source/folder/holes; echo end >>source/folder/holes; chmod 444 source/folder/holes
ln source/folder/file source/folder/linked; ln -s nowhere source/folder/link; chmod 500 source/folder
touch -d 2020-01-01 source/folder/* source/folder; give source; back_up
mkdir to; give to; tmutil restore --replace "$(there folder)" to >said; same source/folder to/folder
[ $(du -k to/folder/holes | cut -f 1) -lt 1000 ] && echo holes
)sh",
           "same\nholes\n");
    EXPECT_EQ(attribute(practice_.path(u"to/folder/file"_s)), attribute(file));
}

} // namespace quillon
