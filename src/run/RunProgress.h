#pragma once

#include "Date.h"
#include "TMStatus.h"

#include <cstdint>
#include <optional>

namespace quillon {

/// Progress of one backup run, as it is shown.
///
/// Time Machine reports progress and remaining time only while it copies. From the moment copying ends, the percentage
/// is carried on to 100 % over the time that was still estimated then.
class RunProgress {
public:
    double percentage() const { return percentage_; }       ///< a fraction
    double timeRemaining() const { return timeRemaining_; } ///< seconds
    std::int64_t bytesCopied() const { return bytesCopied_; }

    /// The run has left its copying phase; to be called before the answer that says so is taken in.
    void copyPhaseEnded(Date now);

    void update(const TMStatus& status, Date now);

private:
    struct CopyPhaseEndEvent {
        Date date;
        double percentage;
        double timeRemaining;
    };

    double percentage_ = 0;
    double timeRemaining_ = 0;
    std::int64_t bytesCopied_ = 0;
    std::optional<CopyPhaseEndEvent> copyPhaseEnd_;
};

} // namespace quillon
