#include "Concerns.h"

#include <functional>
#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono_literals;
using concerns::Kind;

namespace {

constexpr Date now{std::chrono::days(20000)};
constexpr auto day = std::chrono::days(1);

concerns::Facts allIsWell()
{
    return {.now = now, .lastCompleted = now - 1h, .watchedSince = now - 100 * day, .daysWithoutBackup = 10};
}

} // namespace

TEST(Concerns, AreFoundWhereSomethingIsWrongAndNotBefore)
{
    using Change = std::function<void(concerns::Facts & facts)>;
    const std::pair<Change, QList<Kind>> rows[] = {
        {[](auto&) {}, {}},
        {[](auto& facts) { facts.lastRunFailed = true; }, {Kind::BackupFailed}},
        {[](auto& facts) { facts.lastRunFailed = facts.retryIsPlanned = true; }, {}},
        {[](auto& facts) { facts.lastRunFailed = facts.isActive = true; }, {}},
        {[](auto& facts) { facts.lastCompleted = now - 10 * day; }, {Kind::NoBackupForDays}},
        {[](auto& facts) { facts.lastCompleted = now - 10 * day + 1ms; }, {}},
        {[](auto& facts) { facts.lastCompleted.reset(); }, {Kind::NoBackupForDays}},
        {[](auto& facts) { facts.lastCompleted.reset(), facts.watchedSince = now - 9 * day; }, {}},
        {[](auto& facts) { facts.lastCompleted.reset(), facts.daysWithoutBackup = 0; }, {}},
        {[](auto& facts) { facts.startAwaited = 2min; }, {Kind::StartWithoutRun}},
        {[](auto& facts) { facts.startAwaited = 2min - 1ms; }, {}},
        {[](auto& facts) { facts.withoutProgress = 30min; }, {Kind::NoProgress}},
        {[](auto& facts) { facts.withoutProgress = 30min - 1ms; }, {}},
        {[](auto& facts) { facts.damageIsKnown = facts.lastRunFailed = true; },
         {Kind::DamageFound, Kind::BackupFailed}},
    };
    for (const auto& [make, expected] : rows) {
        auto facts = allIsWell();
        make(facts);
        EXPECT_EQ(concerns::found(facts), expected) << "row " << &make - &rows[0].first;
    }
}

TEST(Concerns, EachIsToldOnceADayAndTakenAwayWhenItIsMended)
{
    using concerns::Change;
    const QList<Kind> failed{Kind::BackupFailed};
    EXPECT_EQ(concerns::change(failed, {}, {}, now), (Change{failed, {}}));
    EXPECT_EQ(concerns::change(failed, failed, {{Kind::BackupFailed, now - day + 1ms}}, now), Change());
    EXPECT_EQ(concerns::change(failed, failed, {{Kind::BackupFailed, now - day}}, now), (Change{failed, {}}));
    EXPECT_EQ(concerns::change(failed, {}, {{Kind::BackupFailed, now + 2 * day}}, now), (Change{failed, {}}))
        << "the clock was set back";
    EXPECT_EQ(concerns::change(failed, {}, {{Kind::DamageFound, now}}, now), (Change{failed, {}}));
    EXPECT_EQ(concerns::change({}, failed, {{Kind::BackupFailed, now}}, now), (Change{{}, failed}));
}

} // namespace quillon
