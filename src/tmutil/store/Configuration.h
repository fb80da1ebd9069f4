#pragma once

#include "Destination.h"
#include "Paths.h"
#include "Retention.h"

#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <vector>

namespace quillon {

/// What the user has set up: backup disks and the folders to back up. Read once; a change is made on the newest
/// contents of the file, under a lock, and is whole on disk when the operation returns. All operations throw Failure.
class Configuration {
public:
    /// What is done when the file is damaged and the version before it is, too.
    enum class IfLost { Refuse, BeginAnew };
    explicit Configuration(const Folders& folders, IfLost ifLost = IfLost::Refuse);

    /// What to say of a damaged file; empty where it is not.
    const QString& complaint() const { return complaint_; }
    QString file() const;

    const std::vector<Destination>& destinations() const { return destinations_; }

    /// The folders to back up: the home folder until the user names some.
    QStringList sources() const;

    /// The first of them that lies on the disk at that path, where a backup is lost with it; empty where none does.
    QString sourceOnDisk(const QString& path, const MountTable& mounts = MountTable::current()) const;

    /// Makes that folder the only backup disk, or adds it to those there are. A folder that already held backups of
    /// this user becomes the same destination again; `opens` tells whether the key that is kept for a repository opens
    /// it, for anybody can name a folder. Gives the destination.
    using Opens = std::function<bool(const Destination& destination)>;
    Destination setDestination(const QString& path, bool append, const Opens& opens);

    /// Adds a destination whose repository and key are there, or makes it the only one.
    void takeUp(const Destination& destination, bool append = true);

    /// Its backups stay on the disk, and its key is kept: setting that folder again brings both together.
    void removeDestination(const QString& id);

    /// Adds a folder to back up; the first one replaces the home folder.
    void addSource(const QString& path);

    /// A folder that no longer exists can be removed too. Without any, the home folder is backed up again.
    void removeSource(const QString& path);

    /// How long backups are kept. Of those to set, a number below zero leaves a rule as it is; one hourly backup is the
    /// least, so that the last one is always kept.
    KeepRules keepRules() const;
    void setKeepRules(const KeepRules& rules);

    /// What is left out of backups: files and folders, by their paths.
    QStringList exclusions() const;

    /// Files and folders are also left out by their names, with * and ? for what varies, and files by their size in
    /// bytes; 0 stands for any.
    QStringList excludedNames() const;
    qlonglong largestFile() const;
    static void requireNames(const QStringList& patterns);
    void addExcludedNames(const QStringList& patterns);
    void removeExcludedNames(const QStringList& patterns);
    void setLargestFile(qlonglong bytes);

    /// All of them or, where one is refused, none.
    void addExclusions(const QStringList& paths);
    void removeExclusions(const QStringList& paths);

private:
    void change(const std::function<void()>& edit);
    void put(const Destination& destination);
    void setPaths(const QString& key, const QStringList& paths);
    void read();
    void write();
    Destination destinationAt(const QString& path, const Opens& opens) const;

    Folders folders_;
    IfLost ifLost_;
    QString complaint_;
    QVariantMap contents_; ///< the whole file, entries of other versions included
    std::vector<Destination> destinations_;
};

} // namespace quillon
