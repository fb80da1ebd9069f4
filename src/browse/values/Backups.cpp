#include "Backups.h"

#include "Calendar.h"
#include "DateFormatter.h"
#include "LocalizedString.h"
#include "PropertyList.h"
#include "ShownText.h"

#include <QDate>
#include <QDateTime>
#include <QVariantMap>

#include <algorithm>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

std::optional<Backup> readBackup(const QVariantMap& entry)
{
    Backup backup{.name = entry.value(u"Name"_s).toString(),
                  .date = {},
                  .disk = entry.value(u"DestinationID"_s).toString(),
                  .computer = shownText(entry.value(u"Computer"_s).toString()),
                  .complete = entry.value(u"Complete"_s, true).toBool(),
                  .damaged = entry.value(u"Damaged"_s).toBool()};
    const QDateTime date = entry.value(u"Date"_s).toDateTime();
    if (!backup.name.startsWith(u'/') || !date.isValid())
        return std::nullopt;
    backup.date = Date(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
    return backup;
}

QDate localDay(Date date)
{
    const LocalTime time = Calendar().localTime(date);
    return {time.year, time.month, time.day};
}

QString timeOfDay(Date date)
{
    return DateFormatter::string(date, DateFormatterStyle::None, DateFormatterStyle::Short);
}

/// Where a day stands in the timeline, and how its backups are called there.
struct Place {
    QString heading;
    QString title;
};

Place placeOf(Date date, Date now, int firstDayOfWeek)
{
    const QDate day = localDay(date);
    const QDate today = localDay(now);
    const qint64 age = day.daysTo(today);
    if (age == 0)
        return {localizedString("todayTitle"), timeOfDay(date)};
    if (age == 1)
        return {localizedString("yesterdayTitle"), timeOfDay(date)};
    constexpr int daysOfWeek = 7;
    const int intoWeek = (today.dayOfWeek() - firstDayOfWeek + daysOfWeek) % daysOfWeek;
    if (age > 0 && age <= intoWeek) {
        const int weekday = day.dayOfWeek() % daysOfWeek + 1; // the formatter's week begins on Sunday
        return {localizedString("browseThisWeek"),
                localizedString("browseDayAndTime").arg(DateFormatter::weekdayName(weekday), timeOfDay(date))};
    }
    QString month = DateFormatter::string(date, localizedString("browseMonthPattern"));
    month.replace(0, 1, month.at(0).toUpper());
    return {month, DateFormatter::string(date, DateFormatterStyle::Medium, DateFormatterStyle::Short)};
}

QString remarkOn(const Backup& backup)
{
    if (backup.damaged)
        return localizedString("browseDamaged");
    return backup.complete ? QString() : localizedString("browseIncomplete");
}

bool haveOneComputer(const std::vector<Backup>& backups)
{
    return std::ranges::all_of(backups,
                               [&](const Backup& backup) { return backup.computer == backups.front().computer; });
}

} // namespace

std::optional<std::vector<Backup>> readBackups(const QByteArray& answer)
{
    const auto list = propertylist::parse(answer);
    if (!list || list->typeId() != QMetaType::QVariantList)
        return std::nullopt;
    std::vector<Backup> backups;
    for (const QVariant& entry : list->toList()) {
        const auto backup = readBackup(entry.toMap());
        if (!backup)
            return std::nullopt;
        backups.push_back(*backup);
    }
    std::ranges::stable_sort(backups, std::greater(), &Backup::date);
    return backups;
}

const Backup* nextLater(const std::vector<Backup>& backups, const Backup& backup)
{
    const Backup* found = nullptr;
    for (const Backup& other : backups) {
        if (other.date <= backup.date)
            break;
        if (other.complete && other.disk == backup.disk && other.computer == backup.computer)
            found = &other;
    }
    return found;
}

std::vector<TimelineGroup> timeline(const std::vector<Backup>& backups, Date now, int firstDayOfWeek)
{
    const bool oneComputer = haveOneComputer(backups);
    std::vector<TimelineGroup> groups;
    for (const Backup& backup : backups) {
        const Place place = placeOf(backup.date, now, firstDayOfWeek);
        if (groups.empty() || groups.back().title != place.heading)
            groups.push_back({place.heading, {}});
        QStringList title{place.title};
        if (!oneComputer)
            title.append(backup.computer);
        QStringList details{backupTitle(backup)};
        if (!oneComputer)
            details.append(backup.computer);
        if (const QString remark = remarkOn(backup); !remark.isEmpty())
            details.append(remark);
        groups.back().entries.push_back({backup.name, title.join(u" – "_s), remarkOn(backup), details.join(u", "_s)});
    }
    return groups;
}

QString backupTitle(const Backup& backup)
{
    return DateFormatter::string(backup.date, DateFormatterStyle::Medium, DateFormatterStyle::Short);
}

} // namespace quillon
