#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <optional>
#include <vector>

class QJsonObject;

// What restic says of a repository: its list of backups, and its lines while it makes one.

namespace quillon {

class Repository;
class Restic;

/// One backup.
struct Snapshot {
    QString id;
    QDateTime time; ///< with the offset of the zone in which it was made
    QString host;
    QString mountPoint;
    QStringList sources;  ///< the folders that it was made of
    bool own = true;      ///< made here; others are listed in a repository that was taken up, and never thinned
    bool complete = true; ///< false where it lacks a source that held files before

    /// Snapshots made here bear one of two tags.
    static QString tag(bool complete);

    /// How people name it: "/media/disk/HOST/2026-11-21-072258", in the local time of its making, so that it keeps its
    /// name wherever the computer travels; an incomplete one says so at its end.
    QString name() const;
    /// The same in the local time of now, by which earlier versions named it.
    QString earlierName() const;

private:
    QString nameAt(const QDateTime& date) const;
};

/// The backups of this program in one repository, and all of them in one that was made by hand, oldest first. Throws
/// Failure.
std::vector<Snapshot> snapshotsIn(const Repository& repository, const Restic& restic);

/// The identifiers of those that restic lists and cannot read. Throws Failure.
QStringList unreadableSnapshots(const Restic& restic);

/// The folders that a backup was made of, as a line of `restic ls --json` tells them; nothing in one about a file.
std::optional<QStringList> sourcesIn(const QByteArray& line);

/// Those in which a path lies that begins with the name of one.
std::vector<Snapshot> holdersOf(const std::vector<Snapshot>& snapshots, const QString& path);

/// Those that the names stand for, each for one, the oldest of that name; these names are taken from the list.
std::vector<Snapshot> takeNamed(const std::vector<Snapshot>& snapshots, QStringList& names);

/// Those that a computer of one of these names has made.
std::vector<Snapshot> madeBy(const QStringList& hosts, std::vector<Snapshot> snapshots);

/// The latest complete one that is not dated later than now; else the last of all. Nothing where there is none.
const Snapshot* latestOf(const std::vector<Snapshot>& snapshots, const QDateTime& now);

/// How far copying has come.
struct BackupProgress {
    std::optional<double> fraction = std::nullopt;            ///< 0 to 1, once the scan has ended
    std::optional<qlonglong> secondsRemaining = std::nullopt; ///< once it can be estimated
    qlonglong bytes = 0;                                      ///< read so far
    qlonglong totalBytes = 0;                                 ///< found so far; final once the scan has ended
    qlonglong files = 0;
    qlonglong totalFiles = 0;

    bool operator==(const BackupProgress&) const = default;

    /// The system tool's dictionary "Progress", in which a "Percent" of -1 stands for an unknown one.
    QVariantMap toDictionary() const;
};

/// Notices that a backup gets no further. restic 0.14 waits for ever where the disk fills up as it writes its last
/// files, and goes on telling how far it has come.
class Standstill {
public:
    /// Whether the same has been told for a minute, as of now on a clock that never steps. Nothing told is no progress
    /// that could stand still: restic reads its indexes first.
    bool isSince(const std::optional<BackupProgress>& progress, std::chrono::steady_clock::time_point now);

private:
    std::optional<BackupProgress> told_;
    std::chrono::steady_clock::time_point since_;
};

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
