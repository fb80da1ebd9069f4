#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <vector>

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

/// What one run has done, kept in a file of the state folder.
struct RunLog {
    QString begun; ///< a statusDate(), as `ended`
    QString ended;
    QString destinationId;
    QString disk;        ///< its name
    QString result;      ///< "Completed", "Incomplete", "Failed" or "Stopped"
    QString description; ///< what was wrong, for people; empty where nothing was
    QString backup;      ///< the backup's name; empty where none was made
    qlonglong files = 0;
    qlonglong newFiles = 0;
    qlonglong changedFiles = 0;
    qlonglong bytesAdded = 0; ///< to the repository
    QStringList unread;       ///< every path that could not be read
    QString words;            ///< what restic said on standard error

    /// Keeps it, and the latest 199 besides. False when it could not be written.
    bool write(const QString& stateFolder) const;

    /// Those kept, oldest first.
    static std::vector<RunLog> all(const QString& stateFolder);

    QString line() const; ///< one line of an overview
    QStringList text() const;
};

} // namespace quillon
