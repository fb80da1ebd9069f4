#include "DataHelper.h"

#include "ApplicationIdentity.h"
#include "Calendar.h"
#include "LocalizedString.h"
#include "ProcessInfo.h"
#include "Text.h"

#include <QVersionNumber>

#include <compare>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int farthestDayAhead = 1;
constexpr int farthestDayBack = -6;

LocalTime startOfDay(const Calendar& calendar, Date date)
{
    const LocalTime time = calendar.localTime(date);
    return {.year = time.year, .month = time.month, .day = time.day, .weekday = time.weekday};
}

/// How many days after today a date lies; nothing for a day that has no name relative to today.
std::optional<int> namedDay(const Calendar& calendar, const LocalTime& target, Date now)
{
    const Date targetStart = calendar.date(target);
    const LocalTime today = startOfDay(calendar, now);
    for (int day = farthestDayAhead; day >= farthestDayBack; --day) {
        LocalTime candidate = today;
        candidate.day += day;
        if (calendar.date(candidate) == targetStart)
            return day;
    }
    return std::nullopt;
}

} // namespace

QString DataHelper::getCurrentYear(Date now)
{
    return DateFormatter::string(now, u"yyyy"_s);
}

std::optional<Date> DataHelper::convertDateString(const QString& text, const QString& format)
{
    return DateFormatter::date(text, format);
}

QString DataHelper::getDayFrom(Date date, DateFormatterStyle style, Date now)
{
    const Calendar calendar;
    const LocalTime target = startOfDay(calendar, date);
    const auto day = namedDay(calendar, target, now);
    if (!day)
        return DateFormatter::string(date, style, DateFormatterStyle::None);
    switch (*day) {
    case 1:
        return localizedString("tomorrowTitle");
    case 0:
        return localizedString("todayTitle");
    case -1:
        return localizedString("yesterdayTitle");
    default:
        return DateFormatter::weekdayName(target.weekday);
    }
}

QString DataHelper::dayAndTime(Date date, DateFormatterStyle dayStyle, Date now)
{
    return u"%1, %2"_s.arg(getDayFrom(date, dayStyle, now),
                           getDateTimeFrom(date, DateFormatterStyle::None, DateFormatterStyle::Short));
}

QString DataHelper::getDateTimeFrom(Date date, DateFormatterStyle dateStyle, DateFormatterStyle timeStyle)
{
    return DateFormatter::string(date, dateStyle, timeStyle);
}

Date DataHelper::dateSinceNowWithCeiledMinutes(Seconds interval, Date now)
{
    using namespace std::chrono;
    const auto moment = floor<seconds>(floor<seconds>(now) + interval);
    return floor<minutes>(moment) + minutes(1);
}

QString DataHelper::bundleVersionString()
{
    return u"%1 (Build %2)"_s.arg(bundleShortVersion(), bundleVersion());
}

QString DataHelper::stringFromSystemVersion(const OperatingSystemVersion& version)
{
    return u"%1.%2.%3"_s.arg(QString::number(version.major), QString::number(version.minor),
                             QString::number(version.patch));
}

QString systemVersion()
{
    const auto pretended = QVersionNumber::fromString(qEnvironmentVariable("QUILLON_SYSTEM_VERSION"));
    if (pretended.isNull())
        return DataHelper::stringFromSystemVersion(operatingSystemVersion());
    return DataHelper::stringFromSystemVersion(
        {pretended.majorVersion(), pretended.minorVersion(), pretended.microVersion()});
}

bool systemIsAtLeast(QStringView version)
{
    return std::is_gteq(compareNumerically(systemVersion(), version));
}

QString disableTimeMachineInstruction()
{
    return localizedString(systemIsAtLeast(u"13.0") ? "disableTmInstructionVentura" : "disableTmInstruction");
}

} // namespace quillon
