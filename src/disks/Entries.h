#pragma once

#include "BackupSetup.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

/// One thing in a list that can be removed. Texts are fit to be shown.
struct ListEntry {
    QString id;
    QString title;
    QStringList details; ///< one line each, shortened where there is no room
    QStringList remarks; ///< what is to be noticed; wrapped
    QString symbol;      ///< name of a symbol of ours
    bool dimmed = false;

    bool operator==(const ListEntry&) const = default;
};

/// A number of bytes in words, in the units that disks are sold by.
QString sizeText(qint64 bytes);

/// The last part of a path.
QString shownName(const QString& path);

/// What the backups on a disk take is shown where it is known.
ListEntry diskEntry(const BackupDisk& disk, std::optional<qint64> taken);
ListEntry sourceEntry(const QString& path);

std::vector<ListEntry> exclusionEntries(const Exclusions& exclusions);

/// What tmutil is told to remove such an entry.
QStringList exclusionRemoval(const QString& entryId);

} // namespace quillon
