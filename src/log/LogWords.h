#pragma once

#include "Ledger.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <span>
#include <vector>

/// Entries of the ledger in words, and as days.
namespace quillon::logwords {

/// What an outcome comes to for somebody who looks over many; of several the last one counts.
enum class Mark { None, Passed, Trouble, Going, Good };
Mark markOf(LedgerEntry::Outcome outcome);

QString outcome(LedgerEntry::Outcome outcome);
QString cause(LedgerEntry::Cause cause);
/// Why, and what to do about it; empty where nothing went wrong.
QString reason(const LedgerEntry& entry);
QString disk(const LedgerEntry& entry);
QString size(const LedgerEntry& entry);
/// How long the run took; empty where that is not known.
QString duration(const LedgerEntry& entry);
/// What was planned next; empty for nothing.
QString next(const LedgerEntry& entry, Date now);

/// RFC 4180, in UTF-8, with a line of headings. What a spreadsheet would take for a formula is marked as text.
QByteArray csv(std::span<const LedgerEntry> entries);
/// A line for each.
QString text(std::span<const LedgerEntry> entries);

struct Day {
    Date begin;
    Mark mark = Mark::None;
    QString text; ///< the day, and how often what happened
};
/// The latest day comes last.
std::vector<Day> days(std::span<const LedgerEntry> entries, Date now, int count);

} // namespace quillon::logwords
