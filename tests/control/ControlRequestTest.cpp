#include "ControlRequest.h"

#include "LocalDates.h"
#include "ScopedEnvironment.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// All that is read besides the command, or what is wrong with it.
QString read(const QStringList& words, Date now)
{
    QString error;
    const auto request = ControlRequest::parse(words, &error);
    if (!request)
        return u"! "_s + error;
    QStringList parts{QString::number(int(request->command))};
    if (!request->disk.isEmpty())
        parts.append(request->disk);
    if (request->command == ControlRequest::Command::Pause || request->command == ControlRequest::Command::Postpone)
        parts.append(report::isoDate(request->pauseEnd(now)));
    if (request->rule)
        parts.append(ruleText(*request->rule));
    if (request->number != 0)
        parts.append(u'#' + QString::number(request->number));
    return parts.join(u' ');
}

} // namespace

// Scripts give these words, and older and newer programs send them to each other.
TEST(ControlRequest, IsReadFromTheWordsOfTheCommandLine)
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    const QString pause = u"! pause takes a duration from 1m to 4w, such as 90m, 2h or 1d, or --until and a time"_s;
    const QString postpone = u"! postpone takes a duration from 1m to 4w, such as 90m, 2h or 1d"_s;
    const QString until = u"! --until takes a time such as 18:30, a date such as 2026-11-21, or both as in "
                          "2026-11-21T18:30"_s;
    const QString add = u"! rules add takes a day and a time, such as Monday 18:30, every-day 12:00 or "
                        "weekdays 9:00"_s;
    const QString remove = u"! rules remove takes the number of a rule, which rules prints"_s;
    const std::pair<QString, QString> rows[] = {
        {u"backup"_s, u"0"_s},
        {u"backup --disk A%1"_s, u"0 A%1"_s},
        {u"backup --disk"_s, u"! --disk needs the name or the identifier of a disk"_s},
        {u"backup now"_s, u"! unexpected argument \"now\""_s},
        {u"backup --disk A B"_s, u"! unexpected argument \"B\""_s},
        {u"stop"_s, u"1"_s},
        {u"stop it"_s, u"! unexpected argument \"it\""_s},
        {u"pause 90m"_s, u"2 2026-11-21T13:30:00+01:00"_s},
        {u"pause 1d"_s, u"2 2026-11-22T12:00:00+01:00"_s},
        {u"pause 4w"_s, u"2 2026-12-19T12:00:00+01:00"_s},
        {u"pause 29d"_s, pause},
        {u"pause 0m"_s, pause},
        {u"pause 999999w"_s, pause},
        {u"pause -1h"_s, pause},
        {u"pause 1h30m"_s, pause},
        {u"pause"_s, pause},
        {u"pause 2h 3h"_s, u"! unexpected argument \"3h\""_s},
        {u"pause --until 18:30"_s, u"2 2026-11-21T18:30:00+01:00"_s},
        {u"pause --until 12:00"_s, u"2 2026-11-22T12:00:00+01:00"_s},
        {u"pause --until 2026-11-25"_s, u"2 2026-11-25T00:00:00+01:00"_s},
        {u"pause --until 2026-11-25T07:05"_s, u"2 2026-11-25T07:05:00+01:00"_s},
        {u"pause --until 2026-02-30"_s, until},
        {u"pause --until 24:00"_s, until},
        {u"pause --until"_s, until},
        {u"resume"_s, u"3"_s},
        {u"skip"_s, u"4"_s},
        {u"postpone 2h"_s, u"5 2026-11-21T14:00:00+01:00"_s},
        {u"postpone --until 18:30"_s, postpone},
        {u"retry"_s, u"6"_s},
        {u"skip-retry"_s, u"7"_s},
        {u"rules"_s, u"8"_s},
        {u"rules add Monday 18:30"_s, u"9 Monday 18:30"_s},
        {u"rules add saturday 9:05"_s, u"9 Saturday 09:05"_s},
        {u"rules add every-day 0:00"_s, u"9 every-day 00:00"_s},
        {u"rules add 8 23:59"_s, u"9 weekdays 23:59"_s},
        {u"rules add 1 12:00"_s, u"9 Sunday 12:00"_s},
        {u"rules add 9 12:00"_s, add},
        {u"rules add Montag 12:00"_s, add},
        {u"rules add Monday 12.00"_s, add},
        {u"rules add Monday"_s, add},
        {u"rules remove 2"_s, u"10 #2"_s},
        {u"rules remove 0"_s, remove},
        {u"rules remove all"_s, remove},
        {u"rules list"_s, u"! unexpected argument \"list\""_s},
        {u"settings"_s, u"11"_s},
        {u"status --watch"_s, u"12"_s},
        {u"status --watch 3"_s, u"! unexpected argument \"3\""_s},
        {u"status"_s, u"! unknown command \"status\""_s},
        {u"erase"_s, u"! unknown command \"erase\""_s},
    };
    for (const auto& [words, expected] : rows)
        EXPECT_EQ(read(words.split(u' '), local(2026, 11, 21, 12)), expected) << words.toStdString();
}

TEST(ControlRequest, TravelsAsOneLineAndWhatMeansNothingIsRefused)
{
    const QByteArray line = ControlRequest::toLine({u"backup"_s, u"--disk"_s, u"My\n\"Disk\""_s});
    EXPECT_EQ(line, R"({"request":["backup","--disk","My\n\"Disk\""]})");
    QString error;
    EXPECT_EQ(ControlRequest::fromLine(line, &error)->disk, u"My\n\"Disk\""_s);
    for (const char* nonsense : {"", "{", "[]", "{}", R"({"request":[]})", R"({"request":"stop"})",
                                 R"({"request":["stop",1]})", R"({"request":["erase"]})", R"({"command":["stop"]})"}) {
        error.clear();
        EXPECT_FALSE(ControlRequest::fromLine(nonsense, &error)) << nonsense;
        EXPECT_FALSE(error.isEmpty());
    }
    const ControlAnswer answer{true, u"two\nlines"_s, {{u"next"_s, QJsonValue()}}};
    EXPECT_EQ(answer.toLine(), R"({"done":true,"next":null,"text":"two\nlines"})");
    EXPECT_EQ(ControlAnswer::fromLine(answer.toLine())->text, answer.text);
    EXPECT_FALSE(ControlAnswer::fromLine("presenting"));
}

} // namespace quillon
