#pragma once

#include "Destination.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace quillon {

class Restic;

/// One backup.
struct Snapshot {
    QString id;
    QDateTime time;
    QString host;
    QString mountPoint;

    /// How people name it: "/media/disk/HOST/2026-11-21-072258", in local time.
    QString name() const;
};

/// The backups of this program on one disk, oldest first. Throws Failure.
std::vector<Snapshot> snapshotsOn(const Destination& destination, const Restic& restic);

} // namespace quillon
