#pragma once

#include "Destination.h"

#include <QString>

#include <vector>

namespace quillon {

class History;

/// The destination with that identifier. Throws Failure where there is none, or where its disk is not there.
Destination namedDestination(const std::vector<Destination>& destinations, const QString& id);

/// The destination used last, or else the first one present. Throws Failure where none is present.
Destination usualDestination(const std::vector<Destination>& destinations, const History& history);

/// Of those present the one whose last backup is oldest; one without any backup is older than all. Throws Failure
/// where none is present.
Destination rotatedDestination(const std::vector<Destination>& destinations, const History& history);

} // namespace quillon
