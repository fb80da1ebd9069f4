#pragma once

#include "Date.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// A backup as tmutil lists it.
struct Backup {
    QString name; ///< what tmutil knows it by; a path within it is written behind
    Date date = {};
    QString disk = {}; ///< identifier of the backup disk
    QString computer = {};
    bool complete = true;
    bool damaged = false;
};

/// Reads what `tmutil listbackups -X` prints, newest first; nothing when that is not whole.
std::optional<std::vector<Backup>> readBackups(const QByteArray& answer);

/// Of backups that are newest first, the next complete one after that one, of the same computer on the same disk: what
/// an incomplete one lacks was not deleted. Null where there is none.
const Backup* nextLater(const std::vector<Backup>& backups, const Backup& backup);

/// A backup in the timeline. Texts are fit to be shown.
struct TimelineEntry {
    QString backup; ///< its name
    QString title;
    QString remark;  ///< what is wrong with it; empty where nothing is
    QString details; ///< all of it in words, for who does not see under which heading it stands

    bool operator==(const TimelineEntry&) const = default;
};

/// Backups under one heading, such as "Yesterday".
struct TimelineGroup {
    QString title;
    std::vector<TimelineEntry> entries;

    bool operator==(const TimelineGroup&) const = default;
};

/// The backups, newest first, of one disk or of several. Computers are named where there is more than one.
/// @param firstDayOfWeek 1 for Monday to 7 for Sunday
std::vector<TimelineGroup> timeline(const std::vector<Backup>& backups, Date now, int firstDayOfWeek);

/// Day and time of a backup in words.
QString backupTitle(const Backup& backup);

} // namespace quillon
