#pragma once

#include "Date.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace quillon {

/// The latest completed backup to one disk.
class BackupInfo {
public:
    /// An empty record that is dated `now`, the moment of its creation.
    explicit BackupInfo(Date now);
    BackupInfo(QString diskIdentifier, Date now);

    const QString& diskIdentifier() const { return diskIdentifier_; }
    const QString& diskName() const { return diskName_; }
    std::optional<Date> date() const { return date_; }
    std::int64_t totalBytes() const { return totalBytes_; }

    void setDiskName(const QString& name) { diskName_ = name; }
    void setDate(std::optional<Date> date) { date_ = date; }
    void setTotalBytes(std::int64_t bytes) { totalBytes_ = bytes; }

    /// The record as a binary property list.
    std::optional<QByteArray> archivedData() const;

    /// Reads archivedData(). A missing field is empty, the date too; a dictionary with none of the fields is no record,
    /// and anything else that is wrong gives nothing either.
    static std::optional<BackupInfo> unarchiveFromData(const QByteArray& data);

    bool operator==(const BackupInfo&) const = default;

private:
    BackupInfo() = default;

    QString diskIdentifier_;
    QString diskName_;
    std::optional<Date> date_;
    std::int64_t totalBytes_ = 0;
};

} // namespace quillon
