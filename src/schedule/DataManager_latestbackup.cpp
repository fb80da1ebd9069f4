#include "DataManager.h"
#include "SettingsKeys.h"

#include <algorithm>

namespace quillon {

void DataManager::recordLatestBackup(const QString& diskIdentifier, const QString& diskName, std::int64_t totalBytes,
                                     Date date)
{
    const auto found = std::find_if(latestBackupInfo_.begin(), latestBackupInfo_.end(),
                                    [&](const BackupInfo& info) { return info.diskIdentifier() == diskIdentifier; });
    const bool isNew = found == latestBackupInfo_.end();
    BackupInfo& info =
        isNew ? *latestBackupInfo_.insert(latestBackupInfo_.begin(), BackupInfo(diskIdentifier, date)) : *found;
    info.setDiskName(diskName);
    info.setTotalBytes(totalBytes);
    info.setDate(date);
    if (!isNew) {
        // Nothing is less than any date, so a record without one comes last.
        std::stable_sort(latestBackupInfo_.begin(), latestBackupInfo_.end(),
                         [](const BackupInfo& a, const BackupInfo& b) { return a.date() > b.date(); });
    }
    saveLatestBackupInfo();
}

void DataManager::saveLatestBackupInfo()
{
    defaults_.setObject(settingskeys::latestBackupInfo, archiveLatestBackInfo(latestBackupInfo_));
}

QList<BackupInfo> DataManager::loadLatestBackupInfo() const
{
    return unArchiveLatestBackupInfo(defaults_.array(settingskeys::latestBackupInfo));
}

QVariantList DataManager::archiveLatestBackInfo(const QList<BackupInfo>& records)
{
    QVariantList archived;
    for (const auto& record : records) {
        if (const auto data = record.archivedData())
            archived.append(*data);
    }
    return archived;
}

QList<BackupInfo> DataManager::unArchiveLatestBackupInfo(const QVariantList& archived)
{
    QList<BackupInfo> records;
    for (const auto& element : archived) {
        if (element.typeId() != QMetaType::QByteArray)
            continue;
        if (auto record = BackupInfo::unarchiveFromData(element.toByteArray()))
            records.append(std::move(*record));
    }
    return records;
}

} // namespace quillon
