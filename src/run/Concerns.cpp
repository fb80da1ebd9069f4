#include "Concerns.h"

#include <algorithm>
#include <iterator>

namespace quillon::concerns {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto runFollowsWithin = 2min;
constexpr auto progressComesWithin = 30min;
constexpr auto silence = std::chrono::days(1);

bool isTooLong(const Facts& facts)
{
    const Date since = facts.lastCompleted.value_or(facts.watchedSince);
    return facts.daysWithoutBackup > 0 && facts.now - since >= std::chrono::days(facts.daysWithoutBackup);
}

/// A clock that was set back makes nothing told for ever.
bool wasToldToday(const Told& told, Kind kind, Date now)
{
    const auto at = told.constFind(kind);
    return at != told.cend() && std::chrono::abs(now - *at) < silence;
}

/// A run that goes on, or is planned as a retry, may mend a first failure.
bool mayYetBeMended(Kind kind, const Facts& facts)
{
    return kind == Kind::BackupFailed && facts.failedInARow == 1 && (facts.retryIsPlanned || facts.isActive);
}

} // namespace

QString nameOf(Kind kind)
{
    switch (kind) {
    case Kind::BackupFailed:
        return u"backupFailed"_s;
    case Kind::NoBackupForDays:
        return u"noBackupForDays"_s;
    case Kind::StartWithoutRun:
        return u"startWithoutRun"_s;
    case Kind::NoProgress:
        return u"noProgress"_s;
    case Kind::DamageFound:
        return u"damageFound"_s;
    }
    Q_UNREACHABLE();
}

QList<Kind> found(const Facts& facts)
{
    QList<Kind> wrong;
    if (facts.damageIsKnown)
        wrong << Kind::DamageFound;
    if (isTooLong(facts))
        wrong << Kind::NoBackupForDays;
    if (facts.failedInARow > 0)
        wrong << Kind::BackupFailed;
    if (facts.startAwaited && *facts.startAwaited >= runFollowsWithin)
        wrong << Kind::StartWithoutRun;
    if (facts.withoutProgress && *facts.withoutProgress >= progressComesWithin)
        wrong << Kind::NoProgress;
    return wrong;
}

Change change(const Facts& facts, const QList<Kind>& shown, const Told& told)
{
    const auto wrong = found(facts);
    Change change;
    std::ranges::copy_if(wrong, std::back_inserter(change.post), [&](Kind kind) {
        return !wasToldToday(told, kind, facts.now) && !mayYetBeMended(kind, facts);
    });
    std::ranges::copy_if(shown, std::back_inserter(change.withdraw), [&](Kind kind) { return !wrong.contains(kind); });
    return change;
}

} // namespace quillon::concerns
