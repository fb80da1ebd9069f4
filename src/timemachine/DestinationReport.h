#pragma once

#include "Destination.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace quillon {

/// What `destinationinfo` says, for people and, as an XML property list, for programs. `lastId` is the destination
/// used last; a disk that is not there is listed without its mount point. Throws Failure for names that no property
/// list can hold.
QByteArray destinationText(const std::vector<Destination>& destinations, const QString& lastId);
QByteArray destinationXml(const std::vector<Destination>& destinations, const QString& lastId);

} // namespace quillon
