#pragma once

#include "ExitStatus.h"

#include <QString>

namespace quillon {

/// The worker's end of the line to the `startbackup` that has started it. The caller may hang up at any time.
class CallerChannel {
public:
    /// The descriptor at which a worker finds its channel.
    static constexpr int descriptor = 3;

    /// The lock is held, and the status shows the run.
    void tellReady() const;

    /// The worker ends.
    void tellEnd(ExitStatus status, const QString& message) const;

private:
    static void send(const QByteArray& line);
};

} // namespace quillon
