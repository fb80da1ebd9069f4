#pragma once

#include "Destination.h"
#include "Paths.h"
#include "Repository.h"
#include "ResticOutput.h"

#include <QByteArray>
#include <QDateTime>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>
#include <sys/types.h>
#include <vector>

namespace quillon {

class History;
class Restic;

/// An entry of a backup as restic lists it, in a line of `restic ls --json` or among what `restic find --json` found.
struct ListedFile {
    enum class Kind { File, Folder, Link, Other };

    QString path; ///< a toldPath()
    Kind kind = Kind::Other;
    qint64 size = 0; ///< in bytes; 0 for all but files
    QDateTime modified;
    mode_t mode = 0; ///< the rights, as chmod(2) takes them
    uid_t owner = 0;
    gid_t group = 0;
    QString target; ///< of a link; `restic ls` does not tell it

    /// Nothing where the object is of another kind.
    static std::optional<ListedFile> fromJson(const QByteArray& object);

    QString name() const { return path.section(u'/', -1); }
    QString parent() const { return path.section(u'/', 0, -2); }
};

/// A path as restic tells it in JSON: each byte that is no UTF-8 is U+FFFD.
QString toldPath(const QString& path);

/// Whether the path stands for one name, and for no other whose bytes are told alike.
bool isTold(const QString& path);

/// A name that people look for: a pattern with * and ?, or without them a part of the name; whatever the case.
class NamePattern {
public:
    explicit NamePattern(const QString& pattern);

    bool matches(const QString& name) const { return expression_.match(name).hasMatch(); }

    /// What lets `restic find --ignore-case` find all of these names, and maybe others.
    const QString& forRestic() const { return forRestic_; }

private:
    QRegularExpression expression_;
    QString forRestic_;
};

/// A file as one backup has it.
struct Version {
    QDateTime date; ///< of the backup
    QString backup; ///< its name
    ListedFile file;
};

/// Newest first; of those in a row that may be taken for the same, going by kind, size, target and time of the last
/// change, the newest alone.
std::vector<Version> distinctVersions(std::vector<Version> all);

/// Reads the output of `restic find --json`, which is a single line of any length, piece by piece.
class FindOutput {
public:
    using FileHandler = std::function<void(const ListedFile& file)>;
    using BackupHandler = std::function<void(const QString& snapshotId)>;

    /// restic names a backup after what it has found in it.
    FindOutput(FileHandler onFile, BackupHandler onBackup);

    void read(const QByteArray& piece);

    /// Whether restic has said nothing but what it found. It says so here, among the rest, where a part of a backup
    /// cannot be read.
    bool isWhole() const { return isWhole_; }

private:
    void readOutside(char byte);
    void readInside(char byte);

    FileHandler onFile_;
    BackupHandler onBackup_;
    QByteArray file_;   ///< the object that is being read
    QByteArray backup_; ///< the one around it, without those in it
    int braces_ = 0;
    int brackets_ = 0;
    bool isText_ = false;
    bool isEscaped_ = false;
    bool isWhole_ = true;
};

/// Something in a backup, or all of it.
struct PlaceInBackup {
    const Repository& repository;
    Snapshot snapshot;
    QString path; ///< absolute; empty for everything

    /// A backup knows its files by paths without links, people know them by others: the path, and where it leads to on
    /// this computer if that is another one.
    QStringList paths() const;
};

/// Finds what people name. It reads the list of a disk's backups once.
class BackupFinder {
public:
    /// Both must outlive this object.
    BackupFinder(const std::vector<Destination>& destinations, const Folders& folders);

    /// `name` is a backup's name as `listbackups` prints it, followed by an absolute path in it, or by nothing. The
    /// place is good as long as this object lives. Throws Failure where there is no such backup, or more than one.
    PlaceInBackup find(const QString& name);

    /// The same as the history remembers it, without a look at the list. Only the backup's identifier is known, and it
    /// may be gone; its sources are taken to be the likely ones.
    std::optional<PlaceInBackup> recall(const QString& name, const History& history, const QStringList& likelySources);

private:
    struct Disk {
        Destination destination;
        std::optional<Repository> repository;           ///< nothing where it is not there
        std::optional<std::vector<Snapshot>> snapshots; ///< once they have been read
    };
    Disk& disk(const Destination& destination);

    const std::vector<Destination>& destinations_;
    const Folders& folders_;
    std::deque<Disk> disks_; ///< places refer to them
};

using FileHandler = FindOutput::FileHandler;

/// What is directly in a folder of the backup, as restic tells it, file by file; of a file that itself. Without a path
/// the folders that the backup was made of, which is quick where they are those of the snapshot. False where the backup
/// has nothing at that path. Throws Failure, also where there is no backup of that identifier.
bool listFolder(const Restic& restic, const Snapshot& snapshot, const QString& path, const FileHandler& onFile);

/// The same with all that is below, folders ahead of what they hold.
bool listTree(const Restic& restic, const Snapshot& snapshot, const QString& path, const FileHandler& onFile);

/// Of those paths the ones that the backup has, each by itself. Throws Failure.
std::vector<ListedFile> describe(const Restic& restic, const Snapshot& snapshot, const QStringList& paths);

/// All that `restic find` finds with such options for patterns, backup by backup, in no order of theirs; each is named
/// after what was found in it. What lies in a folder that matches is found, too. Throws Failure, also where a part of a
/// backup cannot be read.
void findFiles(
    const Restic& restic, const QStringList& options, const QStringList& patterns, const FileHandler& onFile,
    const FindOutput::BackupHandler& onBackup = [](const QString&) {});

} // namespace quillon
