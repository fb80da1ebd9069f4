#pragma once

#include "Destination.h"
#include "Folders.h"

#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <vector>

namespace quillon {

/// What the user has set up: backup disks and the folders to back up. Read once; a change is made on the newest
/// contents of the file, under a lock, and is whole on disk when the operation returns. All operations throw Failure.
class Configuration {
public:
    explicit Configuration(const Folders& folders);

    const std::vector<Destination>& destinations() const { return destinations_; }

    /// The folders to back up: the home folder until the user names some.
    QStringList sources() const;

    /// Makes that folder the only backup disk, or adds it to those there are. A folder that already held backups of
    /// this user becomes the same destination again. Gives the destination.
    Destination setDestination(const QString& path, bool append);

    /// Its backups stay on the disk, and its key is kept: setting that folder again brings both together.
    void removeDestination(const QString& id);

    /// Adds a folder to back up; the first one replaces the home folder.
    void addSource(const QString& path);

    /// A folder that no longer exists can be removed too. Without any, the home folder is backed up again.
    void removeSource(const QString& path);

    /// What is left out of backups: files and folders, by their paths.
    QStringList exclusions() const;

    /// All of them or, where one is refused, none.
    void addExclusions(const QStringList& paths);
    void removeExclusions(const QStringList& paths);

private:
    void change(const std::function<void()>& edit);
    void setPaths(const QString& key, const QStringList& paths);
    void read();
    void write();
    QString file() const;
    Destination destinationAt(const QString& path) const;

    Folders folders_;
    QVariantMap contents_; ///< the whole file, entries of other versions included
    std::vector<Destination> destinations_;
};

} // namespace quillon
