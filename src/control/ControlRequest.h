#pragma once

#include "Date.h"
#include "NextBackup.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTime>

#include <chrono>
#include <optional>

namespace quillon {

/// What somebody outside the menu asks the running Quillon for. It travels as the words that a user types; what is
/// understood depends on them alone, so that an older or a newer Quillon refuses only what it does not know.
struct ControlRequest {
    enum class Command {
        Backup,
        Stop,
        Pause,
        Resume,
        Skip,
        Postpone,
        Retry,
        SkipRetry,
        Rules,
        AddRule,
        RemoveRule,
        Settings,
        Watch
    };

    Command command = Command::Watch;
    QString disk{};                             ///< Backup: identifier or name; empty leaves the choice to Time Machine
    std::chrono::seconds duration{0};           ///< Pause and Postpone: a minute to four weeks; 0 where a time is given
    std::optional<Date> untilDate{};            ///< Pause
    std::optional<QTime> untilTime{};           ///< Pause: the next time that it is so late
    std::optional<CalendarIntervalRule> rule{}; ///< AddRule
    int number = 0;                             ///< RemoveRule, counted from 1

    /// Whether the words are a command line for the running Quillon, right or wrong.
    static bool isMeant(const QStringList& words);
    /// Nothing, with one clear line in `error`, when the words are wrong.
    static std::optional<ControlRequest> parse(const QStringList& words, QString* error);
    /// Reads a line that toLine() has made, or another program.
    static std::optional<ControlRequest> fromLine(const QByteArray& line, QString* error);
    /// The words as one line of JSON.
    static QByteArray toLine(const QStringList& words);

    /// The end of the pause that is asked for.
    Date pauseEnd(Date now) const;
};

/// The day and the time of a rule in the words that parse() reads, such as "Monday 18:30".
QString ruleText(const CalendarIntervalRule& rule);

/// What became of a request: one that was not done was refused, for the reason that the text gives.
struct ControlAnswer {
    bool done = false;
    QString text{};      ///< a line for people; of rules one each
    QJsonObject facts{}; ///< the same for programs

    static ControlAnswer refused(const QString& reason) { return {false, reason, {}}; }
    /// Nothing for a line that is no answer.
    static std::optional<ControlAnswer> fromLine(const QByteArray& line);
    QByteArray toLine() const;
};

/// "2026-11-21T12:00", seconds allowed, a blank for the T; on the clock of the current time zone.
std::optional<Date> readLocalDateTime(const QString& text);

} // namespace quillon

/// Dates as quillonctl prints them, and as the running Quillon answers it.
namespace quillon::report {

/// ISO 8601 with the offset that holds at that instant, such as "2026-11-21T12:00:00+01:00".
QString isoDate(Date date);

/// For people, with the weekday: "Sat 2026-11-21 12:00 +01:00".
QString readableDate(Date date);

/// An offset from UTC in seconds, such as "+01:00".
QString offsetText(int offset);

} // namespace quillon::report
