#pragma once

#include "Destination.h"
#include "MountTable.h"

#include <QByteArray>

#include <vector>

namespace quillon {

class Configuration;
class History;
class KeyStore;

/// What `destinationinfo` says, for people and, as an XML property list, for programs, which are told "Path" and, where
/// there is one, the date "LastBackup" besides what the system tool tells; of a disk that is there also "BytesFree" and
/// "BytesTotal", of one with a failure "LastFailure", "RecoveryKeyMissing" where the user is not known to have one, and
/// "SourceOnDisk", a folder that is backed up and would be lost with the disk.
/// A disk that is not there is listed without its mount point. Throws Failure for names that no property list can hold.
QByteArray destinationText(const std::vector<Destination>& destinations, const History& history, const KeyStore& keys);
QByteArray destinationXml(const Configuration& configuration, const History& history, const KeyStore& keys,
                          const MountTable& mounts = MountTable::current());

} // namespace quillon
