#pragma once

#include "Calendar.h"

namespace quillon {

/// A wall-clock moment in the host's current time zone.
inline Date local(int year, int month, int day, int hour, int minute = 0, int second = 0)
{
    return Calendar().date({year, month, day, hour, minute, second});
}

} // namespace quillon
