#include "LogWords.h"

#include "Calendar.h"
#include "DataHelper.h"
#include "HostSystem.h"
#include "LocalizedString.h"
#include "Shown.h"
#include "Text.h"

#include <algorithm>
#include <array>
#include <map>

namespace quillon::logwords {

using namespace Qt::StringLiterals;

namespace {

using Outcome = LedgerEntry::Outcome;
using Reason = LedgerEntry::Reason;

const char* keyOf(Outcome outcome)
{
    static constexpr std::array keys{"logRunningTitle", "logCompletedTitle", "logFailedTitle", "logStoppedTitle",
                                     "logUnseenTitle",  "logSkippedTitle",   "logMissedTitle", "logRefusedTitle"};
    return keys.at(static_cast<std::size_t>(outcome));
}

const char* keyOf(LedgerEntry::Cause cause)
{
    static constexpr std::array keys{"logScheduleTitle", "logRetryTitle", "logUserTitle", "logElsewhereTitle"};
    return keys.at(static_cast<std::size_t>(cause));
}

const char* keyOf(Reason reason)
{
    switch (reason) {
    case Reason::None:
        break;
    case Reason::Paused:
        return "logPausedMessage";
    case Reason::Asleep:
        return "logAsleepMessage";
    case Reason::ClockSet:
        return "logClockSetMessage";
    case Reason::BackupRan:
        return "logBackupRanMessage";
    case Reason::StartedByHand:
    case Reason::Overtaken:
        return "logOvertakenMessage";
    case Reason::Unreadable:
        return "logStatusUnreadableMessage";
    case Reason::SettingsChanged:
        return "logSettingsChangedMessage";
    case Reason::ToolRefused:
        return "failedToStartBackupMessage";
    case Reason::Incomplete:
        return "logIncompleteMessage";
    case Reason::StoppedElsewhere:
        return "logStoppedElsewhereMessage";
    case Reason::NeverReported:
        return "logNeverReportedMessage";
    case Reason::NotFollowed:
        return "logNotFollowedMessage";
    case Reason::HookFailed:
        return "hookStoppedBackupMessage";
    case Reason::Asked:
        return "logAskedMessage";
    case Reason::OnBattery:
        return "logOnBatteryMessage";
    }
    return nullptr;
}

QString stamp(std::optional<Date> date)
{
    return date ? DateFormatter::string(*date, u"yyyy-MM-dd HH:mm:ss"_s) : QString();
}

/// Spreadsheets take what begins like that for a formula.
bool looksLikeFormula(const QString& field)
{
    static constexpr auto beginnings = "=+-@\t\r"_L1;
    return !field.isEmpty() && QString(beginnings).contains(field.front());
}

QString csvLine(QStringList fields)
{
    for (QString& field : fields) {
        if (looksLikeFormula(field))
            field.prepend(u'\'');
        if (field.contains(u',') || field.contains(u'"') || field.contains(u'\n') || field.contains(u'\r'))
            field = u'"' + field.replace(u'"', u"\"\""_s) + u'"';
    }
    return fields.join(u',') + u"\r\n"_s;
}

} // namespace

Mark markOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Running:
        return Mark::Going;
    case Outcome::Completed:
        return Mark::Good;
    case Outcome::Stopped:
    case Outcome::Skipped:
        return Mark::Passed;
    case Outcome::Failed:
    case Outcome::Unseen:
    case Outcome::Missed:
    case Outcome::Refused:
        break;
    }
    return Mark::Trouble;
}

QString outcome(Outcome outcome)
{
    return localizedString(keyOf(outcome));
}

QString cause(LedgerEntry::Cause cause)
{
    return localizedString(keyOf(cause));
}

QString reason(const LedgerEntry& entry)
{
    const char* key = keyOf(entry.reason);
    if (!key)
        return {};
    QStringList sentences{localizedString(key)};
    if (entry.reason == Reason::ToolRefused) {
        const std::int32_t status = entry.exitStatus.value_or(0);
        sentences = {localizedString(key).arg(status), startFailureReason(status)};
    }
    sentences.append(shownLongText(entry.detail));
    sentences.removeAll(QString());
    return sentences.join(u' ');
}

QString disk(const LedgerEntry& entry)
{
    return entry.diskIdentifier.isEmpty() ? QString() : words::diskName(entry.diskName);
}

QString size(const LedgerEntry& entry)
{
    return entry.bytes ? words::bytes(*entry.bytes) : QString();
}

QString duration(const LedgerEntry& entry)
{
    constexpr int abbreviated = 2;
    if (!entry.began || !entry.ended || *entry.ended < *entry.began) // the clock was set back
        return {};
    return words::timeFromInterval(secondsBetween(*entry.began, *entry.ended), abbreviated, true, true);
}

QString next(const LedgerEntry& entry, Date now)
{
    if (!entry.next)
        return {};
    const QString retry = entry.nextIsRetry ? u" (%1)"_s.arg(localizedString("retryAttemptTitle")) : QString();
    return DataHelper::dayAndTime(*entry.next, DateFormatterStyle::Long, now) + retry;
}

QByteArray csv(std::span<const LedgerEntry> entries)
{
    QStringList headings;
    for (const char* key : {"logDateTitle", "logOutcomeTitle", "logCauseTitle", "logDiskTitle", "logBytesTitle",
                            "logBeganTitle", "logEndedTitle", "logReasonTitle", "nextBackupTitle"})
        headings.append(localizedString(key));
    QString lines = csvLine(headings);
    for (const LedgerEntry& entry : entries)
        lines += csvLine({stamp(entry.date), outcome(entry.outcome), cause(entry.cause), disk(entry),
                          entry.bytes ? QString::number(*entry.bytes) : QString(), stamp(entry.began),
                          stamp(entry.ended), reason(entry), stamp(entry.next)});
    return lines.toUtf8();
}

QString text(std::span<const LedgerEntry> entries)
{
    QString lines;
    for (const LedgerEntry& entry : entries) {
        QStringList parts{
            DataHelper::getDateTimeFrom(entry.date, DateFormatterStyle::Medium, DateFormatterStyle::Short),
            outcome(entry.outcome),
            cause(entry.cause),
            disk(entry),
            size(entry),
            duration(entry),
            reason(entry)};
        parts.removeAll(QString());
        lines += parts.join(u", "_s) + u'\n';
    }
    return lines;
}

std::vector<Day> days(std::span<const LedgerEntry> entries, Date now, int count)
{
    const Calendar calendar;
    const LocalTime today = calendar.localTime(now);
    std::vector<Day> days;
    for (int ago = count - 1; ago >= 0; --ago) {
        const Date begin = calendar.date({today.year, today.month, today.day - ago});
        const Date end = calendar.date({today.year, today.month, today.day - ago + 1});
        std::map<Outcome, int> counts;
        for (const LedgerEntry& entry : entries) {
            if (entry.date >= begin && entry.date < end)
                ++counts[entry.outcome];
        }
        Day day{.begin = begin, .text = DataHelper::getDayFrom(begin, DateFormatterStyle::Full, now)};
        QStringList told;
        for (const auto& [kind, times] : counts) {
            told.append(u"%1: %2"_s.arg(outcome(kind), QString::number(times)));
            day.mark = std::max(day.mark, markOf(kind));
        }
        if (told.isEmpty())
            told.append(localizedString("logNoBackupTitle"));
        day.text += u"\n"_s + told.join(u'\n');
        days.push_back(day);
    }
    return days;
}

} // namespace quillon::logwords
