#pragma once

#include "Folders.h"

#include <QStringList>

namespace quillon {

class Configuration;

/// What a backup reads and what it leaves out.
struct SourceSet {
    QStringList folders; ///< those that are there, free of links: restic would store a link itself
    QStringList missing; ///< those that are not
    QStringList leftOut; ///< those that an exclusion leaves nothing of
    QStringList excluded;

    /// Backup disks, restic's cache and the state folder are always left out, besides what the user excludes.
    static SourceSet of(const Configuration& configuration, const Folders& folders);

    /// Whether a backup reads that path, if there is something.
    bool contains(const QString& path) const;

    /// The arguments of `restic backup` that say so.
    QStringList arguments() const;
};

} // namespace quillon
