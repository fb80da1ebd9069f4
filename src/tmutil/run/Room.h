#pragma once

#include "Retention.h"

#include <QString>

#include <vector>

namespace quillon {

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
