#include "Ledger.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array causes{"schedule"_L1, "retry"_L1, "user"_L1, "elsewhere"_L1};
constexpr std::array outcomes{"running"_L1, "completed"_L1, "failed"_L1, "stopped"_L1,
                              "unseen"_L1,  "skipped"_L1,   "missed"_L1, "refused"_L1};
constexpr std::array reasons{""_L1,
                             "paused"_L1,
                             "asleep"_L1,
                             "clockSet"_L1,
                             "backupRan"_L1,
                             "startedByHand"_L1,
                             "unreadable"_L1,
                             "settingsChanged"_L1,
                             "overtaken"_L1,
                             "toolRefused"_L1,
                             "incomplete"_L1,
                             "stoppedElsewhere"_L1,
                             "neverReported"_L1,
                             "notFollowed"_L1,
                             "hookFailed"_L1,
                             "asked"_L1,
                             "onBattery"_L1};

constexpr const auto& namesOf(LedgerEntry::Cause /*kind*/)
{
    return causes;
}

constexpr const auto& namesOf(LedgerEntry::Outcome /*kind*/)
{
    return outcomes;
}

constexpr const auto& namesOf(LedgerEntry::Reason /*kind*/)
{
    return reasons;
}

static_assert(causes.size() == std::size_t(LedgerEntry::Cause::Elsewhere) + 1);
static_assert(outcomes.size() == std::size_t(LedgerEntry::Outcome::Refused) + 1);
static_assert(reasons.size() == std::size_t(LedgerEntry::Reason::OnBattery) + 1);

} // namespace

QString nameOf(LedgerEntry::Cause cause)
{
    return causes.at(static_cast<std::size_t>(cause));
}

QString nameOf(LedgerEntry::Outcome outcome)
{
    return outcomes.at(static_cast<std::size_t>(outcome));
}

QString nameOf(LedgerEntry::Reason reason)
{
    return reasons.at(static_cast<std::size_t>(reason));
}

template<typename Kind>
std::optional<Kind> ledgerKindNamed(const QString& name)
{
    const auto& names = namesOf(Kind{});
    const auto found = std::ranges::find(names, name);
    return found == names.end() ? std::nullopt : std::optional(static_cast<Kind>(found - names.begin()));
}

template std::optional<LedgerEntry::Cause> ledgerKindNamed(const QString& name);
template std::optional<LedgerEntry::Outcome> ledgerKindNamed(const QString& name);
template std::optional<LedgerEntry::Reason> ledgerKindNamed(const QString& name);

} // namespace quillon
