#pragma once

#include <array>
#include <cstdint>

/// The lengths for which the schedule can be paused.
namespace quillon::pausedurations {

struct Duration {
    std::int64_t seconds;
    const char* titleKey;
};

inline constexpr std::array<Duration, 15> all = {{
    {3600, "oneHourTitle"},
    {7200, "twoHoursTitle"},
    {14400, "fourHoursTitle"},
    {28800, "eightHoursTitle"},
    {43200, "twelveHoursTitle"},
    {86400, "oneDayTitle"},
    {172800, "twoDaysTitle"},
    {259200, "threeDaysTitle"},
    {345600, "fourDaysTitle"},
    {432000, "fiveDaysTitle"},
    {518400, "sixDaysTitle"},
    {604800, "oneWeekTitle"},
    {1209600, "twoWeeksTitle"},
    {1814400, "threeWeeksTitle"},
    {2419200, "fourWeeksTitle"},
}};

} // namespace quillon::pausedurations
