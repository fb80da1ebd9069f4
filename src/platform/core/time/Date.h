#pragma once

#include <chrono>

namespace quillon {

/// An instant, to the millisecond. Local time appears only inside Calendar and the formatters.
using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// A length of time in seconds, with fractions.
using Seconds = std::chrono::duration<double>;

/// The instant `interval` after `date`, to the nearest millisecond.
inline Date dateByAdding(Date date, Seconds interval)
{
    return date + std::chrono::round<std::chrono::milliseconds>(interval);
}

/// The earliest instant that is later.
inline Date instantAfter(Date date)
{
    return date + Date::duration(1);
}

/// Seconds from `from` to `to`; negative when `to` is the earlier one.
inline double secondsBetween(Date from, Date to)
{
    return std::chrono::duration<double>(to - from).count();
}

} // namespace quillon
