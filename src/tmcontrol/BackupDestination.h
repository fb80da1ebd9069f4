#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// A disk that Time Machine is set up to back up to.
struct BackupDestination {
    QString id;
    QString name;           ///< for a network destination with the server's name behind it; may be percent-encoded
    bool isLast = false;    ///< the one that Time Machine used last
    bool isMounted = false; ///< never a destination on a server, unless the system mounts it

    bool operator==(const BackupDestination&) const = default;
};

/// What reading the destinations gave: success is false only for output that could not be read.
struct BackupDestinations {
    bool success = true;
    QList<BackupDestination> list; ///< by id, in the order of code points

    /// Reads what "tmutil destinationinfo -X" printed.
    static BackupDestinations fromOutput(const std::optional<QByteArray>& output);
};

} // namespace quillon
