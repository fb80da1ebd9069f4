#pragma once

#include "RunLoop.h"
#include "TaskLauncher.h"

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <deque>
#include <functional>
#include <memory>

namespace quillon {

/// How a call of tmutil ended.
struct TmutilAnswer {
    bool success = false;
    QByteArray output;
    QString complaint; ///< one line for people, tmutil's own where it had one; empty after a success
};

/// Calls tmutil without blocking, one call after the other, each ended when it takes too long. Main thread only. Calls
/// that wait or run when this goes away are given up.
class TmutilClient {
public:
    /// Called once, in a later turn. It may make further calls.
    using Handler = std::function<void(const TmutilAnswer&)>;

    /// Launcher and run loop must outlive this object.
    TmutilClient(TaskLauncher& launcher, RunLoop& runLoop, QString executable,
                 Seconds longestCall = std::chrono::minutes(1));
    TmutilClient(const TmutilClient&) = delete;
    TmutilClient& operator=(const TmutilClient&) = delete;
    ~TmutilClient();

    void call(const QStringList& arguments, Handler handler);

private:
    struct Call {
        QStringList arguments;
        Handler handler;
    };

    void launchNext();
    void ended(const TaskResult& result);
    QString complaintOf(const TaskResult& result) const;

    TaskLauncher& launcher_;
    RunLoop& runLoop_;
    QString executable_;
    Seconds longestCall_;
    std::deque<Call> calls_; ///< the first one runs
    std::unique_ptr<RunningTask> child_;
    Timer limit_;
    bool tooSlow_ = false;
};

} // namespace quillon
