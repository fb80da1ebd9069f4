#include "StartDecision.h"

#include "DataHelper.h"

#include <algorithm>
#include <chrono>

namespace quillon::startdecision {

using namespace std::chrono_literals;

namespace {

constexpr auto grace = 60s;
constexpr Seconds retryInterval{300.0};

bool isDue(const Situation& situation)
{
    return situation.next && *situation.next < situation.now && situation.now - *situation.next < grace;
}

bool isMissed(const Situation& situation)
{
    return situation.next && situation.lastBackup && *situation.lastBackup < *situation.next &&
           *situation.next < situation.now;
}

} // namespace

Decision decide(Occasion occasion, const Situation& situation)
{
    const bool isRetry = situation.retry && situation.next == situation.retry;
    if (occasion != Occasion::Woke && isDue(situation))
        return Decision::Start;
    if (occasion == Occasion::TimerRan && isRetry)
        return Decision::Start;
    if (occasion == Occasion::ClockChanged && isRetry)
        return Decision::KeepRetry;
    if (occasion == Occasion::Woke && situation.isMarkedAsMissed)
        return Decision::Missed;
    return isMissed(situation) ? Decision::Missed : Decision::PlanAnew;
}

Date retryDate(Date now, Seconds wait, std::optional<Date> pending)
{
    const Date fresh = DataHelper::dateSinceNowWithCeiledMinutes(std::max(retryInterval, wait), now);
    const Date date = std::min(pending.value_or(fresh), fresh);
    return wait > 0s ? std::max(date, dateByAdding(now, wait)) : date;
}

} // namespace quillon::startdecision

namespace quillon::machinerules {

namespace {

bool isWanted(const Moment& moment)
{
    return moment.isScheduleEnabled && !moment.isPaused;
}

bool isPossible(const Moment& moment)
{
    return moment.powerAllows && !moment.isActive && !moment.isAsleep;
}

/// Edited rules may give it no more; those that travel to another time zone are not edited.
bool isStillGiven(const HeldStart& held, const Since& since)
{
    return held.isRetry || since.rules == held.rules || since.given == held.due;
}

} // namespace

bool allows(const PowerRule& rule, const PowerState& power)
{
    const bool chargeSuffices = rule.chargeThatSuffices > 0 && power.charge > rule.chargeThatSuffices;
    return !rule.onlyOnMains || power.onMains || !power.charge || chargeSuffices;
}

Fate fateOf(const HeldStart& held, const Since& since)
{
    const bool laterOneHasCome = since.following && *since.following <= since.now;
    const bool comesAgain = since.planned && *since.planned <= held.due;
    if (!isWanted(since.moment) || since.completed || !isStillGiven(held, since) || laterOneHasCome || comesAgain)
        return Fate::Dropped;
    return isPossible(since.moment) && !(held.isRetry && since.retriesWait) ? Fate::Made : Fate::Kept;
}

bool startsForDisk(const Moment& moment, bool lastCameToNothing)
{
    return lastCameToNothing && isWanted(moment) && isPossible(moment);
}

} // namespace quillon::machinerules
