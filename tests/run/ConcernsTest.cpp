#include "Concerns.h"

#include <functional>
#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono_literals;
using concerns::Kind;

namespace {

constexpr Date now{std::chrono::days(20000)};
constexpr auto aDay = std::chrono::days(1);

concerns::Facts allIsWell()
{
    return {.now = now, .lastCompleted = now - 1h, .watchedSince = now - 100 * aDay, .daysWithoutBackup = 10};
}

} // namespace

TEST(Concerns, AreFoundWhereSomethingIsWrongAndNotBefore)
{
    using Change = std::function<void(concerns::Facts & facts)>;
    const std::pair<Change, QList<Kind>> rows[] = {
        {[](auto&) {}, {}},
        {[](auto& facts) { facts.failedInARow = 1; }, {Kind::BackupFailed}},
        {[](auto& facts) { facts.lastCompleted = now - 10 * aDay; }, {Kind::NoBackupForDays}},
        {[](auto& facts) { facts.lastCompleted = now - 10 * aDay + 1ms; }, {}},
        {[](auto& facts) { facts.lastCompleted.reset(); }, {Kind::NoBackupForDays}},
        {[](auto& facts) { facts.lastCompleted.reset(), facts.watchedSince = now - 9 * aDay; }, {}},
        {[](auto& facts) { facts.lastCompleted.reset(), facts.daysWithoutBackup = 0; }, {}},
        {[](auto& facts) { facts.lastCompleted = now - aDay, facts.daysWithoutBackup = 1; }, {Kind::NoBackupForDays}},
        {[](auto& facts) { facts.startAwaited = 2min; }, {Kind::StartWithoutRun}},
        {[](auto& facts) { facts.startAwaited = 2min - 1ms; }, {}},
        {[](auto& facts) { facts.withoutProgress = 30min; }, {Kind::NoProgress}},
        {[](auto& facts) { facts.withoutProgress = 30min - 1ms; }, {}},
        {[](auto& facts) { facts.damageIsKnown = true, facts.failedInARow = 2; },
         {Kind::DamageFound, Kind::BackupFailed}},
    };
    for (const auto& row : rows) {
        auto facts = allIsWell();
        row.first(facts);
        EXPECT_EQ(concerns::found(facts), row.second) << "row " << &row - rows;
    }
}

TEST(Concerns, EachIsToldOnceADayAndTakenAwayWhenItIsMended)
{
    using concerns::Change;
    const QList<Kind> failed{Kind::BackupFailed};
    auto facts = allIsWell();
    EXPECT_EQ(concerns::change(facts, failed, {{Kind::BackupFailed, now}}), (Change{{}, failed}));
    facts.failedInARow = 1;
    EXPECT_EQ(concerns::change(facts, {}, {}), (Change{failed, {}}));
    EXPECT_EQ(concerns::change(facts, failed, {{Kind::BackupFailed, now - aDay + 1ms}}), Change());
    EXPECT_EQ(concerns::change(facts, failed, {{Kind::BackupFailed, now - aDay}}), (Change{failed, {}}));
    EXPECT_EQ(concerns::change(facts, {}, {{Kind::BackupFailed, now + 2 * aDay}}), (Change{failed, {}}))
        << "the clock was set back";
    EXPECT_EQ(concerns::change(facts, {}, {{Kind::DamageFound, now}}), (Change{failed, {}}));
    for (bool concerns::Facts::*mayMend : {&concerns::Facts::retryIsPlanned, &concerns::Facts::isActive}) {
        auto mended = facts;
        mended.*mayMend = true;
        EXPECT_EQ(concerns::change(mended, failed, {}), Change());
        mended.failedInARow = 2;
        EXPECT_EQ(concerns::change(mended, {}, {}), (Change{failed, {}}));
    }
}

} // namespace quillon
