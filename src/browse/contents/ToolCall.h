#pragma once

#include "Setup.h"
#include "Task.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

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

    ToolCall(const Setup::Services& services, const QStringList& arguments, Handlers handlers);
    ToolCall(const ToolCall&) = delete;
    ToolCall& operator=(const ToolCall&) = delete;
    ~ToolCall();

    /// Asks the tool to end; the end is told as any other.
    void stop();

private:
    void take(const QByteArray& bytes);
    void end(const TaskResult& result);

    Handlers handlers_;
    QString executable_;
    QByteArray rest_; ///< of the output: a line that is not whole yet
    bool readable_ = true;
    std::unique_ptr<RunningTask> child_;
};

} // namespace quillon
