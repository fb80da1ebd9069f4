#pragma once

#include "NextBackup.h"
#include "Shown.h"

#include <QJsonObject>
#include <QString>

/// What other programs of the user are told, as functions of one moment: sentences in English for people at a
/// terminal, and facts for scripts.
namespace quillon::told {

/// When the schedule's next start is, or why there is none; the end of a line.
QString nextStart(const shown::Snapshot& snapshot);

/// "next" and "pausedUntil", dates or null, "isRetry" and "waitsForPower".
QJsonObject scheduleFacts(const shown::Snapshot& snapshot);

/// The same with the members of a status: "failed", "state", "phase", "percent", "timeRemaining", "bytesCopied" and
/// "destinationID".
QJsonObject statusFacts(const shown::Snapshot& snapshot);

/// A line of what goes on, with the time ahead of it.
QString statusLine(const shown::Snapshot& snapshot);

/// The rules with their numbers, a line each, and the next start.
QString ruleLines(const QList<CalendarIntervalRule>& rules, const shown::Snapshot& snapshot);

/// "rules", an array of objects with "number", "day" and "time", beside the facts of the schedule.
QJsonObject ruleFacts(const QList<CalendarIntervalRule>& rules, const shown::Snapshot& snapshot);

} // namespace quillon::told
