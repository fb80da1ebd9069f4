#include "ResticLocks.h"

#include "ParentDeath.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(ResticLocks, AreStaleOnceTheirMakerIsSurelyGone)
{
    // restic 0.14.0, as recorded.
    const auto lock = ResticLock::fromJson(R"({"time": "2026-11-22T06:58:28.471491173Z", "exclusive": true,
                                               "hostname": "vm", "username": "root", "pid": 21453})");
    ASSERT_TRUE(lock);
    EXPECT_EQ(lock->process, 21453);
    EXPECT_FALSE(ResticLock::fromJson("")) << "one that cannot be read is nobody's to judge";
    const std::tuple<const char*, ProcessKind, int, bool> cases[] = {
        {"vm", ProcessKind::None, 0, true},         {"vm", ProcessKind::Other, 0, true},
        {"vm", ProcessKind::Restic, 3600, false},   {"vm", ProcessKind::Unknown, 1200, false},
        {"vm", ProcessKind::Unknown, 3600, true},   {"another", ProcessKind::None, 1200, false},
        {"another", ProcessKind::None, 3600, true},
    };
    for (const auto& [host, kind, age, stale] : cases)
        EXPECT_EQ(isStale(*lock, QString::fromLatin1(host), kind, lock->time.addSecs(age)), stale) << host << age;
    EXPECT_EQ(processKind(getpid()), ProcessKind::Other);
    EXPECT_EQ(processKind(-1), ProcessKind::None) << "all that may be signalled";
}

TEST(ParentDeath, IsNoticedAlsoWhereItCameFirst)
{
    EXPECT_TRUE(endWithParent(0, getppid()));
    EXPECT_FALSE(endWithParent(0, getpid())) << "whoever forked it is its parent no more";
}

} // namespace quillon
