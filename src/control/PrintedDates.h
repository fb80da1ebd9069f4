#pragma once

#include "Date.h"

#include <QString>

#include <optional>

namespace quillon {

/// "2026-11-21T12:00", seconds allowed, a blank for the T; on the clock of the current time zone.
std::optional<Date> readLocalDateTime(const QString& text);

} // namespace quillon

/// Dates as quillonctl prints them.
namespace quillon::report {

/// ISO 8601 with the offset that holds at that instant, such as "2026-11-21T12:00:00+01:00".
QString isoDate(Date date);

/// For people, with the weekday: "Sat 2026-11-21 12:00 +01:00".
QString readableDate(Date date);

/// An offset from UTC in seconds, such as "+01:00".
QString offsetText(int offset);

} // namespace quillon::report
