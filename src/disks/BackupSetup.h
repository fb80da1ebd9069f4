#pragma once

#include "Date.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

/// A backup disk as tmutil tells of it.
struct BackupDisk {
    QString id;
    QString name;
    QString path;
    bool present = false; ///< it is there now
    std::optional<Date> lastBackup;
};

/// Reads what `destinationinfo -X` prints; nothing when that is not whole.
std::optional<std::vector<BackupDisk>> readBackupDisks(const QByteArray& answer);

/// Reads what `listsources -X` and `listexclusions -X` print; nothing when that is not whole.
std::optional<QStringList> readPaths(const QByteArray& answer);

} // namespace quillon
