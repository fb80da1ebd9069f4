#include "RunProgress.h"

#include <algorithm>

namespace quillon {

void RunProgress::copyPhaseEnded(Date now)
{
    // Without an estimate there is nothing to carry on.
    if (percentage_ > 0 && timeRemaining_ > 0)
        copyPhaseEnd_ = {now, percentage_, timeRemaining_};
}

void RunProgress::update(const TMStatus& status, Date now)
{
    double elapsed = 0;
    if (status.percent != 0 || timeRemaining_ <= 0) {
        timeRemaining_ = status.timeRemaining;
    } else if (copyPhaseEnd_) {
        elapsed = secondsBetween(copyPhaseEnd_->date, now);
        timeRemaining_ = std::max(copyPhaseEnd_->timeRemaining - elapsed, 0.0);
    }

    if (status.percent > percentage_) {
        percentage_ = status.percent;
    } else if (copyPhaseEnd_) {
        // Once the remaining time has counted down to 0, nothing has elapsed any more and the percentage falls back to
        // where copying ended.
        const double rest = 1 - copyPhaseEnd_->percentage;
        percentage_ = std::min(copyPhaseEnd_->percentage + rest * elapsed / copyPhaseEnd_->timeRemaining, 1.0);
    }
    bytesCopied_ = std::max(bytesCopied_, status.bytesCopied);
}

} // namespace quillon
