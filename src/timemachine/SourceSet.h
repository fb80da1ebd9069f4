#pragma once

#include "Destination.h"
#include "Folders.h"

#include <QStringList>

#include <vector>

namespace quillon {

/// What a backup reads and what it leaves out.
struct SourceSet {
    QStringList folders; ///< those that are there, free of links: restic would store a link itself
    QStringList missing; ///< those that are not
    QStringList excluded;

    /// Backup disks, restic's cache and the state folder are always left out.
    static SourceSet of(const QStringList& sources, const std::vector<Destination>& destinations,
                        const Folders& folders);

    /// The arguments of `restic backup` that say so.
    QStringList arguments() const;
};

} // namespace quillon
