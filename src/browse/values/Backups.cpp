#include "Backups.h"

#include "Calendar.h"
#include "DateFormatter.h"
#include "LocalizedString.h"
#include "PropertyList.h"
#include "Text.h"

#include <QCollator>
#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariantMap>

#include <algorithm>
#include <chrono>
#include <numeric>

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

namespace {

std::optional<FileKind> kindOf(const QString& type)
{
    if (type == "file"_L1)
        return FileKind::File;
    if (type == "folder"_L1)
        return FileKind::Folder;
    if (type == "link"_L1)
        return FileKind::Link;
    return type == "other"_L1 ? std::optional(FileKind::Other) : std::nullopt;
}

bool haveEqualContents(const FileEntry& one, const FileEntry& other)
{
    if (one.kind != other.kind)
        return false;
    switch (one.kind) {
    case FileKind::File:
        if (!one.content.isEmpty() && !other.content.isEmpty())
            return one.content == other.content;
        return one.size == other.size && one.modified == other.modified;
    case FileKind::Link:
        return one.target == other.target;
    case FileKind::Folder:
    case FileKind::Other:
        break;
    }
    return true;
}

} // namespace

std::optional<FileEntry> readFileLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const auto kind = kindOf(object["type"_L1].toString());
    FileEntry entry{.path = object["path"_L1].toString(),
                    .kind = kind.value_or(FileKind::Other),
                    .size = std::nullopt,
                    .modified = std::nullopt,
                    .target = object["target"_L1].toString(),
                    .content = object["content"_L1].toString(),
                    .backup = object["backup"_L1].toString()};
    if (!kind || !entry.path.startsWith(u'/') || QDir::cleanPath(entry.path) != entry.path)
        return std::nullopt;
    if (const QJsonValue size = object["size"_L1]; size.isDouble())
        entry.size = size.toInteger();
    const auto modified = QDateTime::fromString(object["modified"_L1].toString(), Qt::ISODateWithMs);
    if (modified.isValid())
        entry.modified = Date(std::chrono::milliseconds(modified.toMSecsSinceEpoch()));
    return entry;
}

QString nameIn(const QString& folder, const QString& path)
{
    const QString within = folder + u'/';
    const bool directly = path.startsWith(within) && path.indexOf(u'/', within.size()) < 0;
    return directly ? path.sliced(within.size()) : path;
}

QString folderAround(const QString& path)
{
    return path.left(qMax(path.lastIndexOf(u'/'), 0));
}

std::vector<std::size_t> sortedPlaces(const std::vector<FileEntry>& files, const FileOrder& order)
{
    QCollator collator;
    collator.setNumericMode(true);
    std::vector<QCollatorSortKey> names;
    names.reserve(files.size());
    for (const FileEntry& file : files)
        names.push_back(collator.sortKey(nameIn(folderAround(file.path), file.path)));
    std::vector<std::size_t> places(files.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(places, [&](std::size_t one, std::size_t other) {
        const bool oneIsFolder = files[one].kind == FileKind::Folder;
        if (oneIsFolder != (files[other].kind == FileKind::Folder))
            return oneIsFolder;
        const std::size_t lower = order.descending ? other : one;
        const std::size_t higher = order.descending ? one : other;
        if (order.by == FileOrder::By::Size && !oneIsFolder && files[one].size != files[other].size)
            return files[lower].size < files[higher].size;
        if (order.by == FileOrder::By::Modified && files[one].modified != files[other].modified)
            return files[lower].modified < files[higher].modified;
        if (order.by == FileOrder::By::Name)
            return names[lower].compare(names[higher]) < 0;
        return names[one].compare(names[other]) < 0;
    });
    return places;
}

std::vector<Since> changesSince(const std::vector<FileEntry>& files, const std::vector<FileEntry>& later)
{
    QHash<QString, const FileEntry*> byPath;
    byPath.reserve(static_cast<qsizetype>(later.size()));
    for (const FileEntry& entry : later)
        byPath.insert(entry.path, &entry);
    std::vector<Since> changes;
    changes.reserve(files.size());
    for (const FileEntry& entry : files) {
        const FileEntry* const other = byPath.value(entry.path);
        if (!other)
            changes.push_back(Since::Gone);
        else
            changes.push_back(haveEqualContents(entry, *other) ? Since::Same : Since::Changed);
    }
    return changes;
}

NamePattern namePattern(const QString& typed)
{
    const QString folded = foldedName(typed.trimmed());
    if (!folded.contains(u'*') && !folded.contains(u'?'))
        return {folded, false};
    return {QString(folded).replace("["_L1, "[[]"_L1), true};
}

QString foldedName(const QString& name)
{
    return name.toCaseFolded();
}

} // namespace quillon
