#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace quillon {

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
