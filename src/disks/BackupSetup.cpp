#include "BackupSetup.h"

#include "PropertyList.h"

#include <QDateTime>
#include <QVariantMap>

#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

BackupDisk readBackupDisk(const QVariantMap& entry)
{
    BackupDisk disk{.id = entry.value(u"ID"_s).toString(),
                    .name = entry.value(u"Name"_s).toString(),
                    .path = entry.value(u"Path"_s).toString(),
                    .present = entry.contains(u"MountPoint"_s),
                    .lastBackup = std::nullopt};
    if (const QDateTime date = entry.value(u"LastBackup"_s).toDateTime(); date.isValid())
        disk.lastBackup = Date(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
    return disk;
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
    const auto list = propertylist::parse(answer);
    if (!list || list->typeId() != QMetaType::QVariantList)
        return std::nullopt;
    return list->toStringList();
}

} // namespace quillon
