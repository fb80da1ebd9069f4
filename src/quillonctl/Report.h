#pragma once

#include "ControlRequest.h"
#include "Date.h"
#include "Ledger.h"
#include "TMReports.h"
#include "UserDefaults.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

namespace quillon {

struct Diagnosis;

/// The next `count` dates that the stored rules give at or after `from`, a running pause taken into account, each later
/// than the one before; none while the schedule is off.
QList<Date> comingStarts(const UserDefaults& defaults, Date from, int count);

} // namespace quillon

/// What quillonctl prints: text for people, JSON for scripts; each ends in a line feed unless it is empty.
namespace quillon::report {

QByteArray status(const TMStatus& status, bool json);
QByteArray destinations(const QList<BackupDestination>& destinations, bool json);
QByteArray starts(const QList<Date>& starts, bool json);
QByteArray history(std::span<const LedgerEntry> entries, bool json);

/// The whole of a diagnosis on one page for people.
QByteArray doctorText(const Diagnosis& diagnosis);

/// The same for programs; a key is always there, null where nothing is known. Its keys never change their meaning.
QByteArray doctorJson(const Diagnosis& diagnosis);

} // namespace quillon::report
