#pragma once

#include "BackupProgress.h"

#include <chrono>
#include <optional>

namespace quillon {

/// Notices that a backup gets no further. restic 0.14 waits for ever where the disk fills up as it writes its last
/// files, and goes on telling how far it has come.
class Standstill {
public:
    /// Whether the same has been told for a minute, as of now on a clock that never steps. Nothing told is no progress
    /// that could stand still: restic reads its indexes first.
    bool isSince(const std::optional<BackupProgress>& progress, std::chrono::steady_clock::time_point now);

private:
    std::optional<BackupProgress> told_;
    std::chrono::steady_clock::time_point since_;
};

} // namespace quillon
