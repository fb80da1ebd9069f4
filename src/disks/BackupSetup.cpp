#include "BackupSetup.h"

#include "DateFormatter.h"
#include "LocalizedString.h"
#include "PropertyList.h"
#include "Text.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QVariantMap>

#include <algorithm>
#include <chrono>
#include <initializer_list>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

Date dateOf(const QDateTime& date)
{
    return Date(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
}

std::optional<qint64> numberIn(const QVariantMap& entry, const QString& key)
{
    bool isNumber = false;
    const qint64 number = entry.value(key).toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<BackupDisk::Problem> readProblem(const QVariantMap& entry)
{
    if (entry.isEmpty())
        return std::nullopt;
    BackupDisk::Problem problem{.date = std::nullopt,
                                .description = shownLongText(entry.value(u"Description"_s).toString())};
    auto date = QDateTime::fromString(entry.value(u"Date"_s).toString(), u"yyyy-MM-dd HH:mm:ss '+0000'"_s);
    date.setTimeSpec(Qt::UTC);
    if (date.isValid())
        problem.date = dateOf(date);
    return problem;
}

/// Whether a server can be reached is not told, for nobody has asked it.
void readNetwork(const QVariantMap& entry, BackupDisk& disk)
{
    disk.path = entry.value(u"URL"_s).toString();
    disk.present = true;
    disk.network = {.uploadLimit = numberIn(entry, u"UploadLimit"_s).value_or(0),
                    .downloadLimit = numberIn(entry, u"DownloadLimit"_s).value_or(0),
                    .keyFile = entry.value(u"KeyFile"_s).toString(),
                    .region = entry.value(u"Region"_s).toString(),
                    .certificate = entry.value(u"CAFile"_s).toString()};
}

BackupDisk readBackupDisk(const QVariantMap& entry)
{
    BackupDisk disk{.id = entry.value(u"ID"_s).toString(),
                    .name = shownText(entry.value(u"Name"_s).toString()),
                    .path = entry.value(u"Path"_s).toString(),
                    .present = entry.contains(u"MountPoint"_s),
                    .lastBackup = std::nullopt,
                    .problem = readProblem(entry.value(u"LastFailure"_s).toMap()),
                    .bytesFree = numberIn(entry, u"BytesFree"_s),
                    .bytesTotal = numberIn(entry, u"BytesTotal"_s),
                    .recoveryKeyKept = !entry.contains(u"RecoveryKeyMissing"_s),
                    .sourceOnDisk = entry.value(u"SourceOnDisk"_s).toString(),
                    .network = std::nullopt};
    if (entry.value(u"Kind"_s).toString() == "Network"_L1)
        readNetwork(entry, disk);
    if (const QDateTime date = entry.value(u"LastBackup"_s).toDateTime(); date.isValid())
        disk.lastBackup = dateOf(date);
    return disk;
}

/// The dictionary that is the whole answer and has those keys.
std::optional<QVariantMap> readDictionary(const QByteArray& answer, std::initializer_list<QString> keys)
{
    const QVariantMap dictionary = propertylist::parse(answer).value_or(QVariant()).toMap();
    const bool whole = std::ranges::all_of(keys, [&](const QString& key) { return dictionary.contains(key); });
    return whole ? std::optional(dictionary) : std::nullopt;
}

std::optional<QVariantList> readList(const QByteArray& answer)
{
    const auto list = propertylist::parse(answer);
    if (!list || list->typeId() != QMetaType::QVariantList)
        return std::nullopt;
    return list->toList();
}

} // namespace

std::optional<std::vector<BackupDisk>> readBackupDisks(const QByteArray& answer)
{
    const auto list = propertylist::parse(answer);
    if (!list || list->toMap().value(u"Destinations"_s).typeId() != QMetaType::QVariantList)
        return std::nullopt;
    std::vector<BackupDisk> disks;
    for (const QVariant& entry : list->toMap().value(u"Destinations"_s).toList())
        disks.push_back(readBackupDisk(entry.toMap()));
    return disks;
}

std::optional<QStringList> readPaths(const QByteArray& answer)
{
    const auto list = readList(answer);
    return list ? std::optional(QVariant(*list).toStringList()) : std::nullopt;
}

std::optional<Exclusions> readExclusions(const QByteArray& answer)
{
    const auto entry = readDictionary(answer, {u"Paths"_s, u"Names"_s, u"LargestFile"_s});
    if (!entry)
        return std::nullopt;
    return Exclusions{.paths = entry->value(u"Paths"_s).toStringList(),
                      .names = entry->value(u"Names"_s).toStringList(),
                      .largestFile = entry->value(u"LargestFile"_s).toLongLong()};
}

std::optional<std::map<QString, qint64>> readUsage(const QByteArray& answer)
{
    const auto list = readList(answer);
    if (!list)
        return std::nullopt;
    std::map<QString, qint64> bytes;
    for (const QVariant& entry : *list)
        bytes[entry.toMap().value(u"ID"_s).toString()] = entry.toMap().value(u"Bytes"_s).toLongLong();
    return bytes;
}

std::optional<Omission> readOmission(const QByteArray& answer)
{
    const auto entry = readDictionary(answer, {u"Files"_s, u"Bytes"_s});
    if (!entry)
        return std::nullopt;
    return Omission{.files = entry->value(u"Files"_s).toLongLong(), .bytes = entry->value(u"Bytes"_s).toLongLong()};
}

std::optional<RecoveryKey> readRecoveryKey(const QByteArray& answer)
{
    const auto entry = readDictionary(answer, {u"RecoveryKey"_s, u"KeyID"_s});
    if (!entry)
        return std::nullopt;
    return RecoveryKey{.key = entry->value(u"RecoveryKey"_s).toString(),
                       .identifier = entry->value(u"KeyID"_s).toString()};
}

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
    const QString backup = disk.lastBackup ? localizedString("disksLastBackup").arg(dateText(*disk.lastBackup))
                                           : localizedString("disksNoBackupYet");
    return disk.network ? backup
                        : joined({localizedString(disk.present ? "disksConnected" : "disksNotConnected"), backup});
}

QString limitsOf(const BackupDisk::Network& network)
{
    QStringList parts;
    const auto add = [&parts](const char* key, qint64 limit) {
        if (limit > 0)
            parts.append(localizedString(key).arg(QLocale().toString(limit) + rateUnit));
    };
    add("disksPlaceUploadAtMost", network.uploadLimit);
    add("disksPlaceDownloadAtMost", network.downloadLimit);
    return joined(parts);
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
                    .symbol = disk.network ? u"network"_s : u"externaldrive"_s,
                    .dimmed = !disk.present,
                    .editable = disk.network.has_value()};
    if (const QString room = disk.network ? limitsOf(*disk.network) : roomOf(disk, taken);
        disk.present && !room.isEmpty())
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
