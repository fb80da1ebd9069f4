#pragma once

#include "BackupDestination.h"
#include "Date.h"
#include "TMStatus.h"
#include "UserDefaults.h"

#include <QByteArray>
#include <QList>

namespace quillon {

/// The next `count` dates that the stored rules give at or after `from`, a running pause taken into account, each later
/// than the one before; none while the schedule is off.
QList<Date> comingStarts(const UserDefaults& defaults, Date from, int count);

} // namespace quillon

/// What quillonctl prints: text for people, JSON for scripts; each ends in a line feed unless it is empty.
namespace quillon::report {

/// ISO 8601 with the offset that holds at that instant, such as "2026-11-21T12:00:00+01:00".
QString isoDate(Date date);

/// For people, with the weekday: "Sat 2026-11-21 12:00 +01:00".
QString readableDate(Date date);

/// An offset from UTC in seconds, such as "+01:00".
QString offsetText(int offset);

QByteArray status(const TMStatus& status, bool json);
QByteArray destinations(const QList<BackupDestination>& destinations, bool json);
QByteArray starts(const QList<Date>& starts, bool json);

} // namespace quillon::report
