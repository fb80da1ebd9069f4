#include "ControlRequest.h"

#include "Calendar.h"
#include "NextBackup.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTime>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

std::optional<Date> readLocalDateTime(const QString& text)
{
    static const QRegularExpression form(uR"(^(\d{4}-\d{2}-\d{2})[T ](\d{2}:\d{2}(?::\d{2})?)$)"_s);
    const auto match = form.match(text);
    const QDate day = QDate::fromString(match.captured(1), Qt::ISODate);
    const QTime time = QTime::fromString(match.captured(2), Qt::ISODate);
    if (!match.hasMatch() || !day.isValid() || !time.isValid())
        return std::nullopt;
    return Calendar().date({day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second()});
}

} // namespace quillon

namespace quillon::report {

QString isoDate(Date date)
{
    const LocalTime local = Calendar().localTime(date);
    return QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02d", local.year, local.month, local.day, local.hour,
                             local.minute, local.second) +
           offsetText(Calendar().offsetFromUtc(date));
}

QString readableDate(Date date)
{
    constexpr std::array weekdays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    const LocalTime local = Calendar().localTime(date);
    return QString::asprintf("%s %04d-%02d-%02d %02d:%02d ", weekdays.at(static_cast<std::size_t>(local.weekday - 1)),
                             local.year, local.month, local.day, local.hour, local.minute) +
           offsetText(Calendar().offsetFromUtc(date));
}

QString offsetText(int offset)
{
    const int minutes = std::abs(offset) / 60;
    return QString::asprintf("%c%02d:%02d", offset < 0 ? '-' : '+', minutes / 60, minutes % 60);
}

} // namespace quillon::report

namespace quillon {

namespace {

using Command = ControlRequest::Command;

constexpr auto longestDuration = 28 * 24h; // the longest pause that the menu offers

constexpr std::array plainCommands{
    std::pair{"stop"_L1, Command::Stop},
    std::pair{"resume"_L1, Command::Resume},
    std::pair{"skip"_L1, Command::Skip},
    std::pair{"retry"_L1, Command::Retry},
    std::pair{"skip-retry"_L1, Command::SkipRetry},
    std::pair{"settings"_L1, Command::Settings},
};

constexpr std::array days{
    std::pair{"every-day"_L1, CalendarIntervalRule::everyDay},
    std::pair{"Sunday"_L1, 1LL},
    std::pair{"Monday"_L1, 2LL},
    std::pair{"Tuesday"_L1, 3LL},
    std::pair{"Wednesday"_L1, 4LL},
    std::pair{"Thursday"_L1, 5LL},
    std::pair{"Friday"_L1, 6LL},
    std::pair{"Saturday"_L1, 7LL},
    std::pair{"weekdays"_L1, CalendarIntervalRule::mondayToFriday},
};

std::optional<qlonglong> readDay(const QString& word)
{
    for (const auto& [name, code] : days) {
        if (word.compare(name, Qt::CaseInsensitive) == 0 || word == QString::number(code))
            return code;
    }
    return std::nullopt;
}

std::optional<QTime> readTime(const QString& word)
{
    static const QRegularExpression form(uR"(^\d{1,2}:\d{2}$)"_s);
    const QTime time = QTime::fromString(word, u"H:mm"_s);
    return form.match(word).hasMatch() && time.isValid() ? std::optional(time) : std::nullopt;
}

std::optional<std::chrono::seconds> readDuration(const QString& word)
{
    static const QRegularExpression form(u"^(\\d{1,6})([mhdw])$"_s);
    const auto match = form.match(word);
    if (!match.hasMatch())
        return std::nullopt;
    const int count = match.captured(1).toInt();
    const QString unit = match.captured(2);
    const std::chrono::seconds length = unit == "m"_L1   ? count * 1min
                                        : unit == "h"_L1 ? count * 1h
                                        : unit == "d"_L1 ? count * 24h
                                                         : count * 7 * 24h;
    return length >= 1min && length <= longestDuration ? std::optional(length) : std::nullopt;
}

/// The words behind a command: each reader takes what is its own, and says what is wrong.
struct Rest {
    QStringList words;
    QString* error;

    std::optional<ControlRequest> wrong(const QString& sentence) const
    {
        *error = sentence;
        return std::nullopt;
    }

    std::optional<ControlRequest> plain(ControlRequest request) const
    {
        return words.isEmpty() ? std::optional(std::move(request))
                               : wrong(u"unexpected argument \"%1\""_s.arg(words.first()));
    }

    std::optional<ControlRequest> backup() const
    {
        if (words.isEmpty() || words.first() != "--disk"_L1)
            return plain({.command = Command::Backup});
        if (words.size() < 2 || words[1].isEmpty())
            return wrong(u"--disk needs the name or the identifier of a disk"_s);
        return Rest{words.mid(2), error}.plain({.command = Command::Backup, .disk = words[1]});
    }

    std::optional<ControlRequest> lasting(Command command, const QString& needs) const
    {
        const auto length = readDuration(words.value(0));
        if (!length)
            return wrong(needs);
        return Rest{words.mid(1), error}.plain({.command = command, .duration = *length});
    }

    std::optional<ControlRequest> pause() const
    {
        if (words.value(0) != "--until"_L1)
            return lasting(Command::Pause, u"pause takes a duration from 1m to 4w, such as 90m, 2h or 1d, or --until "
                                           "and a time"_s);
        const QString until = words.value(1);
        const auto date = readLocalDateTime(until.contains(u':') ? until : until + "T00:00"_L1);
        const auto time = readTime(until);
        if (!date && !time)
            return wrong(u"--until takes a time such as 18:30, a date such as 2026-11-21, or both as in "
                         "2026-11-21T18:30"_s);
        return Rest{words.mid(2), error}.plain({.command = Command::Pause, .untilDate = date, .untilTime = time});
    }

    std::optional<ControlRequest> rules() const
    {
        if (words.value(0) == "add"_L1) {
            const auto day = readDay(words.value(1));
            const auto time = readTime(words.value(2));
            if (!day || !time)
                return wrong(u"rules add takes a day and a time, such as Monday 18:30, every-day 12:00 or "
                             "weekdays 9:00"_s);
            const CalendarIntervalRule rule{*day, time->msecsSinceStartOfDay() / 1000};
            return Rest{words.mid(3), error}.plain({.command = Command::AddRule, .rule = rule});
        }
        if (words.value(0) == "remove"_L1) {
            const int number = words.value(1).toInt();
            if (number < 1)
                return wrong(u"rules remove takes the number of a rule, which rules prints"_s);
            return Rest{words.mid(2), error}.plain({.command = Command::RemoveRule, .number = number});
        }
        return plain({.command = Command::Rules});
    }
};

} // namespace

bool ControlRequest::isMeant(const QStringList& words)
{
    const QString& word = words.value(0);
    const auto isPlain = [&word](const auto& plain) { return plain.first == word; };
    return word == "backup"_L1 || word == "pause"_L1 || word == "postpone"_L1 || word == "rules"_L1 ||
           (word == "status"_L1 && words.contains("--watch"_L1)) || std::ranges::any_of(plainCommands, isPlain);
}

std::optional<ControlRequest> ControlRequest::parse(const QStringList& words, QString* error)
{
    const QString word = words.value(0);
    const Rest rest{words.mid(1), error};
    if (!isMeant(words))
        return rest.wrong(u"unknown command \"%1\""_s.arg(word));
    for (const auto& [name, command] : plainCommands) {
        if (word == name)
            return rest.plain({.command = command});
    }
    if (word == "backup"_L1)
        return rest.backup();
    if (word == "pause"_L1)
        return rest.pause();
    if (word == "postpone"_L1)
        return rest.lasting(Command::Postpone, u"postpone takes a duration from 1m to 4w, such as 90m, 2h or 1d"_s);
    if (word == "rules"_L1)
        return rest.rules();
    Rest ofWatch = rest;
    ofWatch.words.removeOne(u"--watch"_s);
    return ofWatch.plain({.command = Command::Watch});
}

std::optional<ControlRequest> ControlRequest::fromLine(const QByteArray& line, QString* error)
{
    const QJsonValue request = QJsonDocument::fromJson(line).object().value(u"request"_s);
    const QJsonArray array = request.toArray();
    QStringList words;
    for (const auto& word : array) {
        if (word.isString())
            words.append(word.toString());
    }
    if (words.isEmpty() || words.size() != array.size()) {
        *error = u"the request cannot be understood"_s;
        return std::nullopt;
    }
    return parse(words, error);
}

QByteArray ControlRequest::toLine(const QStringList& words)
{
    return QJsonDocument(QJsonObject{{u"request"_s, QJsonArray::fromStringList(words)}}).toJson(QJsonDocument::Compact);
}

Date ControlRequest::pauseEnd(Date now) const
{
    if (untilDate)
        return *untilDate;
    if (!untilTime)
        return now + duration;
    const Calendar calendar;
    LocalTime end = calendar.localTime(now);
    end = {end.year, end.month, end.day, untilTime->hour(), untilTime->minute()};
    if (calendar.date(end) <= now)
        ++end.day;
    return calendar.date(end);
}

QString ruleText(const CalendarIntervalRule& rule)
{
    const auto time = nextbackup::timeComponents(static_cast<double>(rule.time));
    QString day = QString::number(rule.day);
    for (const auto& [name, code] : days) {
        if (rule.day == code)
            day = name;
    }
    return day + QString::asprintf(" %02d:%02d", time.hour, time.minute);
}

std::optional<ControlAnswer> ControlAnswer::fromLine(const QByteArray& line)
{
    const QJsonObject facts = QJsonDocument::fromJson(line).object();
    if (!facts.value(u"done"_s).isBool())
        return std::nullopt;
    return ControlAnswer{facts[u"done"_s].toBool(), facts[u"text"_s].toString(), facts};
}

QByteArray ControlAnswer::toLine() const
{
    QJsonObject object = facts;
    object.insert(u"done"_s, done);
    object.insert(u"text"_s, text);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace quillon
