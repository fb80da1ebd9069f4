#pragma once

#include "BackupProgress.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class QJsonObject;

namespace quillon {

/// Reads what `restic backup` prints, line by line.
class BackupOutput {
public:
    /// `sources`: the folders that are read, absolute. `repaired`: the repository has lost data that is stored anew
    /// now; of each file concerned restic complains first, and then stores it.
    explicit BackupOutput(const QStringList& sources = {}, bool repaired = false);

    /// The options that make restic print what is read here.
    QStringList options() const;

    /// A line of standard output. True when progress() has changed.
    bool readLine(const QByteArray& line);

    /// A JSON message on standard error.
    void readMessage(const QByteArray& line);

    /// Nothing until the first file has been begun.
    const std::optional<BackupProgress>& progress() const { return progress_; }

    /// Empty until the snapshot has been written.
    const QString& snapshotId() const { return snapshotId_; }

    /// From the summary: 0 until it has come.
    qlonglong newFiles() const { return newFiles_; }
    qlonglong changedFiles() const { return changedFiles_; }
    qlonglong bytesAdded() const { return bytesAdded_; }

    /// What could not be read, each once.
    QStringList unreadPaths() const;

    /// The sources of which no file has been seen so far.
    const QStringList& emptySources() const { return emptySources_; }

private:
    bool needsItems() const;
    void readItem(const QByteArray& line);
    void readSummary(const QJsonObject& message);

    QStringList emptySources_;
    bool isOnlySource_;
    bool scanEnded_ = false;
    std::optional<BackupProgress> progress_;
    QString snapshotId_;
    qlonglong newFiles_ = 0;
    qlonglong changedFiles_ = 0;
    qlonglong bytesAdded_ = 0;
    bool repaired_;
    QStringList complaints_;
    QSet<size_t> stored_; ///< hashes of the paths, after a repair only
};

} // namespace quillon
