#pragma once

#include "Snapshot.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace quillon {

/// What there is to say of a backup that was made.
struct BackupRemark {
    QStringList lostSources;    ///< sentences on sources that held files before and don't now
    QStringList lackingSources; ///< sentences on what is not there or left out
    qlonglong unreadFiles = 0;
    qlonglong lostBackups = 0;     ///< that were on the disk at the last run, and that nobody thins
    qlonglong damagedRecords = 0;  ///< of backups, put aside
    std::vector<Snapshot> removed; ///< for want of room, oldest first
    QString thinningProblem;
    QDateTime lastVerification; ///< invalid where there was none yet

    /// The cause, of several the gravest, as a word for programs, and sentences for people on all of them; nothing for
    /// a backup without fault.
    std::optional<std::pair<QString, QString>> text(const QDateTime& now) const;

    /// A sentence on what was removed, whatever came of the backup; empty where nothing was.
    QString removal() const;
};

} // namespace quillon
