#include "PrintedDates.h"

#include "Calendar.h"

#include <QDate>
#include <QRegularExpression>
#include <QTime>

#include <array>
#include <cstdlib>

namespace quillon {

using namespace Qt::StringLiterals;

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
