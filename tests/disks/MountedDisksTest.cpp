#include "Setup.h"
#include "VirtualLauncher.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// As lsblk of util-linux 2.38 prints it.
TEST(MountedDisks, OffersWritableDisksThatAreNotTheSystems)
{
    const auto disks = readMountedDisks(R"({"blockdevices": [
{"label":"root", "mountpoints":["/srv/bind","/"], "fsavail":10, "ro":false},
{"label":"EFI", "mountpoints":["/boot/efi"], "fsavail":10, "ro":false},
{"label":null, "mountpoints":["[SWAP]"], "fsavail":null, "ro":false},
{"label":"DVD", "mountpoints":["/media/u/DVD"], "fsavail":0, "ro":true},
{"label":null, "mountpoints":["/media/u/stick"], "fsavail":null, "ro":false},
{"label":"Back & up", "mountpoints":["/media/u/0815"], "fsavail":5000000000000, "ro":false}]})");
    EXPECT_EQ(disks, (std::vector<MountedDisk>{{u"Back & up"_s, u"/media/u/0815"_s, 5'000'000'000'000},
                                               {u"stick"_s, u"/media/u/stick"_s, std::nullopt}}));
    EXPECT_FALSE(readMountedDisks("lsblk: not found"));
}

TEST(MountedDisks, AListThatHangsIsGivenUpAndWhatWasKnownWithIt)
{
    VirtualRunLoop runLoop(Date(1'000'000s));
    const QStringList words{u"--json"_s, u"--list"_s, u"--bytes"_s, u"--output"_s, u"LABEL,MOUNTPOINTS,FSAVAIL,RO"_s};
    const TmutilScript::Call answers{words, R"({"blockdevices":[{"mountpoints":["/media/a"]}]})"};
    const TmutilScript::Call hangs{.expected = words, .output = {}, .fault = TmutilScript::Fault::Hang};
    ScriptedLauncher lsblk(runLoop, {{answers, hangs, answers}});
    MountedDisks disks(lsblk, runLoop, u"/usr/bin/lsblk"_s);
    const auto refresh = [&](Seconds wait) {
        disks.refresh(); // asks for no second answer beside the first
        runLoop.advance(wait);
        return disks.list().size();
    };
    EXPECT_EQ(refresh(1s), 1U);
    EXPECT_EQ(refresh(9s), 1U);
    EXPECT_EQ(refresh(2s), 0U) << "what is not known is not offered";
    EXPECT_EQ(lsblk.liveChildren(), 0);
    EXPECT_EQ(refresh(1s), 1U);
}

} // namespace quillon
