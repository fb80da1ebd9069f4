#pragma once

#include "Destination.h"
#include "Folders.h"

#include <QStringList>
#include <QVariantMap>

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

    /// Adds a folder to back up; the first one replaces the home folder.
    void addSource(const QString& path);

private:
    void read();
    void write();
    QString file() const;
    Destination destinationAt(const QString& path) const;

    Folders folders_;
    QVariantMap contents_; ///< the whole file, entries of other versions included
    std::vector<Destination> destinations_;
};

} // namespace quillon
