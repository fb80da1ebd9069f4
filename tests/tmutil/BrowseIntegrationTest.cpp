#include "BackupFixture.h"

namespace quillon {

/// What a window asks that shows what backups hold.
class BrowseIntegration : public BackupIntegration {
protected:
    void SetUp() override
    {
        practice_.addDisk(u"disk"_s);
        expect(R"sh(
cd source; mkdir -p folder/deep; echo 12345 >folder/deep/file; ln -s ../nowhere folder/link; mkfifo folder/pipe
folder=$(printf 'f\374'); mkdir $folder; echo 1 >$folder/in; echo 2 >"$(printf 'o\374\n[*]\\')"; chmod 2750 folder
cd ..; touch -d '2020-01-02 03:04:05.678 UTC' source/folder/deep/file; back_up
)sh",
               "");
    }

    const QByteArray words_ = R"sh(
latest=$(tmutil latestbackup) here=$(tmutil latestbackup)$PWD/source
json() { "$@" | sed "s,$PWD,,g"; }
field() { sed -n "s/.*\"$1\":\"\([^\"]*\)\".*/\1/p"; }
)sh";
};

TEST_F(BrowseIntegration, ABackupIsListedFolderByFolderOrAsAWhole)
{
    expect(words_ + R"sh(
tmutil listbackups -X | grep -A 1 -e Name -e Complete -e Damaged | sed -n "s,$latest,latest,;s/.*<\(str.*\|tr.*\|fa.*\)>/\1/p"
json tmutil listfiles --json $latest | field path
echo in the folder; json tmutil listfiles --json $here/folder | grep -v pipe | sed 's/"modified":"[^"]*",//'
tmutil listfiles $here/folder/deep | grep -c '^ *6  20.* file$'
json tmutil listfiles --json $here/folder/deep/file | field modified
echo all; json tmutil listfiles -r --json $here | field path | sort
tmutil listfiles -r $latest | grep -cE ' (/.*/source|/.*/source/folder)/$'
echo odd; for name in "$(printf 'f\374')" "$(printf 'f\357\277\275')"; do tmutil listfiles "$here/$name" | grep -c ' in$'; done
tmutil listfiles $here/nothing 2>said; tmutil listfiles $PWD/disk 2>said
echo later; mkdir -p other/place; tmutil addsource other/place; tmutil removesource source
json tmutil listfiles --json $latest | field path
by_hand disk forget latest; tmutil listfiles $latest 2>said; tmutil listfiles $here 2>said
)sh",
           "true/\nfalse/\nstring>latest</string\n/source\nin the folder\n"
           R"({"mode":493,"path":"/source/folder/deep","type":"folder"}
{"mode":511,"path":"/source/folder/link","target":"../nowhere","type":"link"}
1
2020-01-02T03:04:05.678Z
all
/source/folder
/source/folder/deep
/source/folder/deep/file
/source/folder/link
/source/folder/pipe
)"
           "/source/f\uFFFD\n/source/f\uFFFD/in\n/source/o\uFFFD\\n[*]\\\\\n2\nodd\n1\n1\nlistfiles: 6\nlistfiles: 6\n"
           "later\n/source\nlistfiles: 6\nlistfiles: 6\n");
}

TEST_F(BrowseIntegration, WhatIsLookedForIsFoundInEveryBackup)
{
    expect(words_ + R"sh(
for time in 10 11; do by_hand disk backup --tag quillon --time "2020-01-01 $time:00:00" $PWD/source; done
rm -r source/folder/deep/file; echo new >source/folder/new
by_hand disk backup --tag quillon --time '2020-01-01 12:00:00' $PWD/source; tmutil deletebackup $latest
set -- $(tmutil listbackups); first=$1 second=$2 third=$3
told_in() { sed "s,$first,1,;s,$second,2,;s,$third,3,;s,$PWD,,g" | sed 's/.*"backup":"\([^"]*\)".*"path":"\([^"]*\)".*/\1 \2/'; }
tmutil findfiles --json FILE | told_in | sort
tmutil findfiles --json -b $third deep 'N?w' | told_in
echo none; tmutil findfiles 'fi?'; tmutil findfiles -b $third/ file
tmutil versions --json $PWD/source/folder/deep/file | told_in
mkdir other; ln -s ../source/folder other/way; tmutil versions --json $PWD/other/way/link | told_in
tmutil versions --json $PWD/source/folder | told_in
tmutil versions source/folder 2>said; tmutil versions /nothing 2>said
)sh",
           "1 /source/folder/deep/file\n2 /source/folder/deep/file\n3 /source/folder/deep\n3 /source/folder/new\nnone\n"
           "2 /source/folder/deep/file\n3 /source/folder/link\n3 /source/folder\n2 /source/folder\n"
           "versions: 64\nversions: 6\n");
}

TEST_F(BrowseIntegration, APartThatCannotBeReadIsTold)
{
    expect(words_ + R"sh(
for pack in $(find $(repository disk)/data -type f); do chmod u+w $pack; dd if=/dev/zero of=$pack bs=$(stat -c %s $pack) count=1 conv=notrunc; done 2>said
rm -r cache; for command in 'listfiles' 'listfiles -r'; do tmutil $command $here/folder 2>said; grep -c tmutil said; done
tmutil findfiles file 2>said; grep -c 'Not all' said
)sh",
           "listfiles: 1\n1\nlistfiles: 1\n1\nfindfiles: 1\n1\n");
}

} // namespace quillon
