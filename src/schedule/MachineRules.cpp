#include "MachineRules.h"

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
