#include "Standstill.h"

namespace quillon {

bool Standstill::isSince(const std::optional<BackupProgress>& progress, std::chrono::steady_clock::time_point now)
{
    constexpr std::chrono::minutes longest{1};
    if (!progress || progress != told_) {
        told_ = progress;
        since_ = now;
    }
    return now - since_ >= longest;
}

} // namespace quillon
