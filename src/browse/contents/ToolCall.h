#pragma once

#include "RunLoop.h"
#include "Setup.h"
#include "Task.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// One call of tmutil that runs beside others and tells line by line, so that a million of them need no room. When it
/// goes away, the tool is asked to end and nothing more is told.
class ToolCall {
public:
    struct Handlers {
        /// Takes a line; false where it is not one of those expected, which ends the call. It must not destroy the
        /// call.
        std::function<bool(const QByteArray& line)> line;
        /// Called once, in a later turn, with what went wrong in a line for people, or nothing. It may destroy the
        /// call.
        std::function<void(const QString& complaint)> ended;
    };

    /// A call that tells nothing for longer than `longestSilence` is given up.
    ToolCall(const Setup::Services& services, const QStringList& arguments, Handlers handlers,
             std::optional<Seconds> longestSilence = {});
    ToolCall(const ToolCall&) = delete;
    ToolCall& operator=(const ToolCall&) = delete;
    ~ToolCall();

    /// Asks the tool to end; the end is told as any other.
    void stop();

private:
    void take(const QByteArray& bytes);
    void end(const TaskResult& result);
    void awaitMore();
    void giveUp();

    Handlers handlers_;
    RunLoop& runLoop_;
    QString executable_;
    std::optional<Seconds> longestSilence_;
    Timer silence_;
    QByteArray rest_; ///< of the output: a line that is not whole yet
    bool readable_ = true;
    std::unique_ptr<RunningTask> child_;
};

} // namespace quillon
