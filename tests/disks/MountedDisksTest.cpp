#include "MountedDisks.h"

#include "VirtualLauncher.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Plays lsblk, a call after the other.
class PlayedLsblk final : public VirtualLauncher {
public:
    using VirtualLauncher::VirtualLauncher;

    QList<TmutilScript::Call> calls;

protected:
    TmutilScript::Call behaviour(const TaskRequest&) override { return calls.takeFirst(); }
};

TmutilScript::Call played(const QByteArray& output, TmutilScript::Fault fault = TmutilScript::Fault::None)
{
    TmutilScript::Call call;
    call.output = output;
    call.fault = fault;
    return call;
}

constexpr auto oneDisk = R"({"blockdevices":[{"label":"A","mountpoints":["/media/a"],"fsavail":1,"ro":false}]})";

} // namespace

// As lsblk of util-linux 2.38 prints it.
TEST(MountedDisks, OffersWritableDisksThatAreNotTheSystems)
{
    const auto disks = readMountedDisks(R"({"blockdevices": [
{"label":null, "mountpoints":[null], "fsavail":null, "ro":false},
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
    PlayedLsblk lsblk(runLoop);
    lsblk.calls = {played(oneDisk), played({}, TmutilScript::Fault::Hang), played(oneDisk)};
    MountedDisks disks(lsblk, runLoop, u"/usr/bin/lsblk"_s);
    EXPECT_EQ(disks.state(), MountedDisks::State::Asked);
    const auto ask = [&](Seconds seconds) {
        disks.refresh();
        disks.refresh(); // asks for no second answer beside the first
        runLoop.advance(seconds);
        return std::pair(disks.state(), disks.list().size());
    };
    EXPECT_EQ(ask(1s), std::pair(MountedDisks::State::Known, size_t{1}));
    EXPECT_EQ(ask(9s), std::pair(MountedDisks::State::Known, size_t{1}));
    runLoop.advance(2s);
    EXPECT_EQ(disks.state(), MountedDisks::State::Failed);
    EXPECT_TRUE(disks.list().empty()) << "what is not known is not offered";
    EXPECT_EQ(lsblk.liveChildren(), 0);
    EXPECT_EQ(ask(1s), std::pair(MountedDisks::State::Known, size_t{1}));
}

} // namespace quillon
