#pragma once

#include <QDateTime>
#include <QStringList>

namespace quillon {

/// How long backups are kept: 24 hourly, 30 daily and 520 weekly ones, which always includes the last. The arguments
/// are restic's.
QStringList forgetArguments(const QString& tag);

/// Giving the room of forgotten backups back is slow: once a week is enough. An invalid date stands for "never".
bool isPruneDue(const QDateTime& lastPrune, const QDateTime& now);

} // namespace quillon
