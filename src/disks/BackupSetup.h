#pragma once

#include "Date.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace quillon {

/// A backup disk, or a place on a server, as tmutil tells of it.
struct BackupDisk {
    /// What the last backup met with, or what a verification has found.
    struct Problem {
        std::optional<Date> date;
        QString description; ///< in tmutil's words
    };

    /// What one on a server has besides; what lets the user in is told only where it is no secret.
    struct Network {
        qint64 uploadLimit = 0; ///< KiB a second; 0 for none
        qint64 downloadLimit = 0;
        QString keyFile;
        QString region;
        QString certificate;
    };

    QString id;
    QString name;         ///< fit to be shown
    QString path;         ///< a URL where it is on a server
    bool present = false; ///< it is there now, as far as that is known
    std::optional<Date> lastBackup;
    std::optional<Problem> problem;
    std::optional<qint64> bytesFree;  ///< of one that is there
    std::optional<qint64> bytesTotal; ///< likewise
    bool recoveryKeyKept = false;
    QString sourceOnDisk; ///< a folder that is backed up to the disk on which it lies itself; empty where there is none
    std::optional<Network> network;
};

/// What is left out of backups besides what nobody has to name.
struct Exclusions {
    QStringList paths;
    QStringList names;      ///< with * and ? for what varies
    qint64 largestFile = 0; ///< bytes; 0 for any
};

/// What an exclusion would leave out of the present folders.
struct Omission {
    qint64 files = 0;
    qint64 bytes = 0;
};

/// A recovery key that tmutil has made.
struct RecoveryKey {
    QString key;
    QString identifier; ///< what tmutil is told when the user has kept it
};

/// These read what tmutil prints with -X: `destinationinfo`, `listsources`, `listexclusions`, `diskusage` (bytes by the
/// disks' identifiers), `excludename` and `excludelarger` with --try, `recoverykey`. Nothing when that is not whole.
std::optional<std::vector<BackupDisk>> readBackupDisks(const QByteArray& answer);
std::optional<QStringList> readPaths(const QByteArray& answer);
std::optional<Exclusions> readExclusions(const QByteArray& answer);
std::optional<std::map<QString, qint64>> readUsage(const QByteArray& answer);
std::optional<Omission> readOmission(const QByteArray& answer);
std::optional<RecoveryKey> readRecoveryKey(const QByteArray& answer);

/// One thing in a list that can be removed. Texts are fit to be shown.
struct ListEntry {
    QString id;
    QString title;
    QStringList details; ///< one line each, shortened where there is no room
    QStringList remarks; ///< what is to be noticed; wrapped
    QString symbol;      ///< name of a symbol of ours
    bool dimmed = false;
    bool editable = false;

    bool operator==(const ListEntry&) const = default;
};

/// A number of bytes in words, in the units that disks are sold by.
QString sizeText(qint64 bytes);

/// Behind a number of KiB a second.
inline constexpr QLatin1StringView rateUnit{" KiB/s"};

/// The last part of a path.
QString shownName(const QString& path);

/// What the backups on a disk take is shown where it is known.
ListEntry diskEntry(const BackupDisk& disk, std::optional<qint64> taken);
ListEntry sourceEntry(const QString& path);

std::vector<ListEntry> exclusionEntries(const Exclusions& exclusions);

/// What tmutil is told to remove such an entry.
QStringList exclusionRemoval(const QString& entryId);

} // namespace quillon
