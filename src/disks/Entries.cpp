#include "Entries.h"

#include "DateFormatter.h"
#include "LocalizedString.h"
#include "ShownText.h"

#include <QFileInfo>
#include <QLocale>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Names hold no slash and paths begin with one that no other follows.
constexpr auto sizeId = "//"_L1;

QString dateText(Date date)
{
    return DateFormatter::string(date, DateFormatterStyle::Medium, DateFormatterStyle::Short);
}

QString joined(const QStringList& parts)
{
    return parts.join(u" – "_s);
}

QString stateOf(const BackupDisk& disk)
{
    return joined({localizedString(disk.present ? "disksConnected" : "disksNotConnected"),
                   disk.lastBackup ? localizedString("disksLastBackup").arg(dateText(*disk.lastBackup))
                                   : localizedString("disksNoBackupYet")});
}

QString roomOf(const BackupDisk& disk, std::optional<qint64> taken)
{
    QStringList parts;
    if (disk.bytesFree && disk.bytesTotal)
        parts.append(localizedString("disksRoom").arg(sizeText(*disk.bytesFree), sizeText(*disk.bytesTotal)));
    if (taken)
        parts.append(localizedString("disksTaken").arg(sizeText(*taken)));
    return joined(parts);
}

QString problemOf(const BackupDisk::Problem& problem)
{
    return problem.date ? localizedString("disksProblem").arg(dateText(*problem.date), problem.description)
                        : problem.description;
}

} // namespace

QString sizeText(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QString shownName(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    return shownText(name.isEmpty() ? path : name);
}

ListEntry diskEntry(const BackupDisk& disk, std::optional<qint64> taken)
{
    ListEntry entry{.id = disk.id,
                    .title = disk.name,
                    .details = {shownLongText(disk.path), stateOf(disk)},
                    .remarks = {},
                    .symbol = u"externaldrive"_s,
                    .dimmed = !disk.present};
    if (const QString room = roomOf(disk, taken); disk.present && !room.isEmpty())
        entry.details.append(room);
    if (disk.problem)
        entry.remarks.append(problemOf(*disk.problem));
    if (!disk.sourceOnDisk.isEmpty())
        entry.remarks.append(localizedString("disksSourceOnDisk").arg(shownName(disk.sourceOnDisk)));
    if (!disk.recoveryKeyKept)
        entry.remarks.append(localizedString("disksKeyNotKept"));
    return entry;
}

ListEntry sourceEntry(const QString& path)
{
    return {
        .id = path, .title = shownName(path), .details = {shownLongText(path)}, .remarks = {}, .symbol = u"folder"_s};
}

std::vector<ListEntry> exclusionEntries(const Exclusions& exclusions)
{
    std::vector<ListEntry> entries;
    const auto add = [&entries](const QString& id, const QString& title, const QString& detail) {
        entries.push_back({.id = id, .title = title, .details = {detail}, .remarks = {}, .symbol = u"minus.circle"_s});
    };
    // Whether it is a file or a folder is not asked here, where a disk that hangs would stop the window.
    for (const QString& path : exclusions.paths)
        add(path, shownName(path), shownLongText(path));
    for (const QString& name : exclusions.names)
        add(name, shownText(name), localizedString("disksByName"));
    if (exclusions.largestFile > 0)
        add(sizeId, localizedString("disksLargerThan").arg(sizeText(exclusions.largestFile)),
            localizedString("disksBySize"));
    return entries;
}

QStringList exclusionRemoval(const QString& entryId)
{
    if (entryId == sizeId)
        return {u"excludelarger"_s, u"0"_s};
    return {entryId.startsWith(u'/') ? u"removeexclusion"_s : u"includename"_s, u"--"_s, entryId};
}

} // namespace quillon
