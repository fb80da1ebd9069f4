#pragma once

#include "Destination.h"

#include <QByteArray>

#include <vector>

namespace quillon {

class History;
class KeyStore;

/// What `destinationinfo` says, for people and, as an XML property list, for programs, which are told "Path" and, where
/// there is one, the date "LastBackup" besides what the system tool tells; of a disk that is there also "BytesFree" and
/// "BytesTotal", of one with a failure "LastFailure", and "RecoveryKeyMissing" where the user is not known to have one.
/// A disk that is not there is listed without its mount point. Throws Failure for names that no property list can hold.
QByteArray destinationText(const std::vector<Destination>& destinations, const History& history, const KeyStore& keys);
QByteArray destinationXml(const std::vector<Destination>& destinations, const History& history, const KeyStore& keys);

} // namespace quillon
