#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

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

} // namespace quillon
