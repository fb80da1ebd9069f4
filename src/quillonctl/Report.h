#pragma once

#include "BackupDestination.h"
#include "Date.h"
#include "TMStatus.h"

#include <QByteArray>
#include <QList>

/// What quillonctl prints: text for people, JSON for scripts; each ends in a line feed unless it is empty.
namespace quillon::report {

QByteArray status(const TMStatus& status, bool json);
QByteArray destinations(const QList<BackupDestination>& destinations, bool json);
QByteArray starts(const QList<Date>& starts, bool json);

} // namespace quillon::report
