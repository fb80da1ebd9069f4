#pragma once

#include "Snapshot.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace quillon {

/// How many hours, days and weeks that have backups keep their last one.
struct KeepRules {
    int hourly = 24;
    int daily = 30;
    int weekly = 520;
};

/// The backups that the rules do not keep, oldest first as they are given; never the last complete one of a folder,
/// be it that the folder is backed up no more. The rules hold for each computer by itself. Complete and incomplete ones
/// are counted apart, so that none of these takes the place of one of those. `justMade`, an identifier or its
/// beginning, is always kept; those dated later than `now`, by a clock that has been set back since, are kept and not
/// counted until their time has come.
std::vector<Snapshot> dispensable(const std::vector<Snapshot>& snapshots, const KeepRules& rules,
                                  const QString& justMade, const QDateTime& now);

/// Of the backups made here those that may go when there is no room, those missed least first: never the last complete
/// one of a folder on a computer, nor the last of all of a computer. One dated later than `now` is the last only where
/// there is no other.
std::vector<Snapshot> leastMissed(const std::vector<Snapshot>& snapshots, const QDateTime& now);

/// What is done once a week, such as giving the room of forgotten backups back, which is slow. An invalid date stands
/// for "never".
bool isWeekOver(const QDateTime& last, const QDateTime& now);

} // namespace quillon
