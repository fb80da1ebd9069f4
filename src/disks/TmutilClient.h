#pragma once

#include "TMUtilQueue.h"

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <functional>

namespace quillon {

/// How a call of tmutil ended.
struct TmutilAnswer {
    bool success = false;
    QByteArray output;
    QString complaint; ///< one line for people, tmutil's own where it had one; empty after a success
};

/// Calls tmutil, one call after the other, and says in a line for people what went wrong. Main thread only. Calls that
/// wait or run when this goes away are given up.
class TmutilClient {
public:
    /// Called once, in a later turn. It may make further calls.
    using Handler = std::function<void(const TmutilAnswer&)>;

    /// Launcher and run loop must outlive this object.
    TmutilClient(TaskLauncher& launcher, RunLoop& runLoop, QString executable,
                 Seconds longestCall = std::chrono::minutes(1));
    TmutilClient(const TmutilClient&) = delete;
    TmutilClient& operator=(const TmutilClient&) = delete;
    /// tmutil may be ended at any point: what it writes, it writes whole.
    ~TmutilClient() { queue_.abandon(); }

    void call(const QStringList& arguments, const Handler& handler);

private:
    QString complaintOf(const TaskResult& result, bool tooSlow) const;

    QString executable_;
    Seconds longestCall_;
    TMUtilQueue queue_;
};

} // namespace quillon
