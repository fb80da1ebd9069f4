#include "Told.h"

#include "ControlRequest.h"
#include "Shown.h"

#include <QJsonArray>
#include <QStringList>

namespace quillon::told {

using namespace Qt::StringLiterals;

namespace {

QJsonValue dateOrNull(std::optional<Date> date)
{
    return date ? QJsonValue(report::isoDate(*date)) : QJsonValue();
}

/// The end of a pause that has not come yet.
std::optional<Date> pausedUntil(const shown::Snapshot& snapshot)
{
    return snapshot.pauseUntil && *snapshot.pauseUntil > snapshot.now ? snapshot.pauseUntil : std::nullopt;
}

QStringList runParts(const BackupRun& run)
{
    QStringList parts{run.tmState() == TMState::Stopping ? u"stopping"_s : u"running"_s, run.tmPhase(),
                      words::percent(run.progress().percentage())};
    if (const double remaining = run.progress().timeRemaining(); remaining > 0)
        parts.append(u"%1 s remaining"_s.arg(qRound64(remaining)));
    return parts;
}

} // namespace

QString nextStart(const shown::Snapshot& snapshot)
{
    if (!snapshot.nextScheduledBackupDate)
        return snapshot.isScheduleEnabled ? u"no backup is planned"_s : u"the schedule is off"_s;
    return (snapshot.waitsForPower ? u"a backup waits for mains power, "_s : QString()) +
           (snapshot.retryBackupDate ? u"retry "_s : u"next backup "_s) +
           report::readableDate(*snapshot.nextScheduledBackupDate);
}

QJsonObject scheduleFacts(const shown::Snapshot& snapshot)
{
    return {{u"next"_s, dateOrNull(snapshot.nextScheduledBackupDate)},
            {u"isRetry"_s, snapshot.retryBackupDate.has_value()},
            {u"waitsForPower"_s, snapshot.waitsForPower},
            {u"pausedUntil"_s, dateOrNull(pausedUntil(snapshot))}};
}

QJsonObject statusFacts(const shown::Snapshot& snapshot)
{
    const BackupRun& run = snapshot.run;
    QJsonObject facts = scheduleFacts(snapshot);
    facts.insert(u"failed"_s, run.tmState() == TMState::Unknown);
    facts.insert(u"state"_s, static_cast<qint64>(run.tmState()));
    facts.insert(u"phase"_s, run.tmPhase());
    facts.insert(u"percent"_s, run.progress().percentage());
    facts.insert(u"timeRemaining"_s, run.progress().timeRemaining());
    facts.insert(u"bytesCopied"_s, static_cast<qint64>(run.progress().bytesCopied()));
    facts.insert(u"destinationID"_s, run.activeBackupDiskIdentifier().value_or(QString()));
    return facts;
}

QString statusLine(const shown::Snapshot& snapshot)
{
    QStringList parts;
    switch (snapshot.run.tmState()) {
    case TMState::Unknown:
        parts.append(u"what Time Machine does cannot be told"_s);
        break;
    case TMState::NotRunning:
        if (const auto end = pausedUntil(snapshot))
            parts.append(u"paused until "_s + report::readableDate(*end));
        parts.append(nextStart(snapshot));
        break;
    case TMState::Starting:
        parts.append(u"starting"_s);
        break;
    default:
        parts = runParts(snapshot.run);
    }
    return report::isoDate(snapshot.now) + u"  "_s + parts.join(u", "_s);
}

QString ruleLines(const QList<CalendarIntervalRule>& rules, const shown::Snapshot& snapshot)
{
    QStringList lines;
    for (const auto& rule : rules)
        lines.append(u"%1  %2"_s.arg(QString::number(lines.size() + 1), ruleText(rule)));
    lines.append(rules.isEmpty() ? u"there are no rules; "_s + nextStart(snapshot) : nextStart(snapshot));
    return lines.join(u'\n');
}

QJsonObject ruleFacts(const QList<CalendarIntervalRule>& rules, const shown::Snapshot& snapshot)
{
    QJsonArray array;
    for (const auto& rule : rules) {
        const QStringList dayAndTime = ruleText(rule).split(u' ');
        array.append(
            QJsonObject{{u"number"_s, array.size() + 1}, {u"day"_s, dayAndTime[0]}, {u"time"_s, dayAndTime[1]}});
    }
    QJsonObject facts = scheduleFacts(snapshot);
    facts.insert(u"rules"_s, array);
    return facts;
}

} // namespace quillon::told
