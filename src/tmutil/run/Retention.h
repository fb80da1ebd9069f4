#pragma once

#include "ResticOutput.h"

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

// From here on what acts upon a repository by those decisions.

class Repository;
class Restic;

/// Whether less room is left than restic's lock and index files need.
bool isFull(const Repository& repository);

/// Whether what restic has in hand may not fit any more.
bool isNearlyFull(const Repository& repository);

/// A file that a full disk can do without: nothing can be removed from a repository, and nothing be said to be removed,
/// while not even a lock can be written. Made where there is plenty of room and none yet.
void keepReserve(const Repository& repository);

void removeReserve(const Repository& repository);

/// The first step on a full disk: removes the reserve, what an interrupted backup has left, and what the rules don't
/// keep. Gives the room to aim for, in blocks of the disk, should that not be enough: a twentieth of it, or twice what
/// is free now. Throws Failure.
quint64 removeLeftovers(const Repository& repository, const Restic& restic, const KeepRules& rules);

/// A further step, each twice the one before: removes some of those missed least and adds them to `removed`, also where
/// it then throws Failure. False when nothing is left that may go, or as much room is free as was aimed for: what needs
/// more than that is not worth all that was before.
bool removeLeastMissed(const Repository& repository, const Restic& restic, quint64 roomWanted,
                       std::vector<Snapshot>& removed);

/// Removes those backups; their room is given back by a prune. Throws Failure.
void forget(const std::vector<Snapshot>& snapshots, const Restic& restic);

} // namespace quillon
