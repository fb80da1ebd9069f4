#pragma once

#include "BackupProgress.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

/// Reads what `restic backup --json --verbose=2` prints, line by line.
class BackupOutput {
public:
    /// A line of standard output. True when progress() has changed.
    bool readLine(const QByteArray& line);

    /// A JSON message on standard error.
    void readMessage(const QByteArray& line);

    /// Nothing until the first file has been begun.
    const std::optional<BackupProgress>& progress() const { return progress_; }

    /// Empty until the snapshot has been written.
    const QString& snapshotId() const { return snapshotId_; }

    qlonglong unreadFiles() const { return unreadFiles_; }

private:
    bool scanEnded_ = false;
    std::optional<BackupProgress> progress_;
    QString snapshotId_;
    qlonglong unreadFiles_ = 0;
};

} // namespace quillon
