#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantMap>

namespace quillon {

/// A date as `status` writes it, such as "2026-11-21 07:22:58 +0000".
QString statusDate(const QDateTime& date);

/// Why the last backup failed, or what was wrong with one that completed.
struct LastFailure {
    QString date; ///< a statusDate()
    QString destinationId;
    QString cause;             ///< a word for programs, such as "NoSpace"
    QString description;       ///< a sentence for people
    qlonglong unreadFiles = 0; ///< files that a completed backup lacks

    /// As it stands in the status.
    QVariantMap toDictionary() const;
};

} // namespace quillon
