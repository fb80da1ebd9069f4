#pragma once

#include "BackupDestination.h"

#include <QList>
#include <QString>

#include <cstdint>

/// Lengths of time, sizes, disks and phases as they are shown.
namespace quillon::words {

/// Style 1 is positional ("1:30"), style 2 abbreviated ("1h 30m"); precision adds the second unit from one hour up,
/// seconds add it below.
QString timeFromInterval(double seconds, int style, bool includePrecision, bool includeSeconds);
/// In decimal units.
QString bytes(std::int64_t count);
/// The fraction as a percentage with one digit behind the point.
QString percent(double fraction);
/// The name of a destination as it is shown; "N/A" for none.
QString diskName(const QString& name);
/// The same of the destination that has the identifier; "N/A" for one that is not among them.
QString diskNameFor(const QString& identifier, const QList<BackupDestination>& disks);
/// A raw phase word in the user's language; an unknown one as it is.
QString phase(const QString& rawPhase);

} // namespace quillon::words
