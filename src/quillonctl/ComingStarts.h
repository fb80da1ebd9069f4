#pragma once

#include "Date.h"
#include "UserDefaults.h"

#include <QList>

namespace quillon {

/// The next `count` dates that the stored rules give at or after `from`, a running pause taken into account, each later
/// than the one before; none while the schedule is off.
QList<Date> comingStarts(const UserDefaults& defaults, Date from, int count);

} // namespace quillon
