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
    expect(
        words_ + R"sh(
tmutil listbackups -X | grep -A 1 -e Name -e Complete -e Damaged | sed -n "s,$latest,latest,;s/.*<\(str.*\|tr.*\|fa.*\)>/\1/p"
json tmutil listfiles --json $latest | field path
echo in the folder; json tmutil listfiles --json $here/folder | grep -v pipe | sed 's/"modified":"[^"]*",//'
tmutil listfiles $here/folder/deep | grep -c '^ *6  20.* file$'
json tmutil listfiles --json $here/folder/deep/file | field modified
echo all; json tmutil listfiles -r --json $here | field path | sort
tmutil listfiles -r $latest | grep -cE ' (/.*/source|/.*/source/folder)/$'
echo odd; for name in "$(printf 'f\374')" "$(printf 'f\357\277\275')"; do tmutil listfiles "$here/$name" | grep -c ' in$'; done
tmutil listfiles $here/nothing 2>said; tmutil listfiles $PWD/disk 2>said
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
        "/source/f\uFFFD\n/source/f\uFFFD/in\n/source/o\uFFFD\\n[*]\\\\\n2\nodd\n1\n1\nlistfiles: 6\nlistfiles: 6\n");
}

} // namespace quillon
