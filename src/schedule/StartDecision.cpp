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
