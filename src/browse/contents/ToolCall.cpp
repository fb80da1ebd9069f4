#include "ToolCall.h"

#include "LocalizedString.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// A path has 4096 bytes at most, each of which may take six characters.
constexpr qsizetype longestLine = qsizetype{256} * 1024;

} // namespace

ToolCall::ToolCall(const Setup::Services& services, const QStringList& arguments, Handlers handlers,
                   std::optional<Seconds> longestSilence)
    : handlers_(std::move(handlers))
    , runLoop_(services.runLoop)
    , executable_(services.tmutil)
    , longestSilence_(longestSilence)
{
    child_ = services.launcher.launch({.executable = executable_,
                                       .arguments = arguments,
                                       .environment = {u"command="_s + arguments.first()},
                                       .captureErrors = true,
                                       .takeOutput = [this](const QByteArray& bytes) { take(bytes); }},
                                      [this](const TaskResult& result) { end(result); });
    awaitMore();
}

ToolCall::~ToolCall()
{
    if (child_)
        child_->terminate();
}

void ToolCall::stop()
{
    if (child_)
        child_->terminate();
}

void ToolCall::awaitMore()
{
    if (longestSilence_)
        silence_ = runLoop_.scheduleAfter(*longestSilence_, [this] { giveUp(); });
}

/// A tool that waits for a disk may not even end when it is asked to, so that its end is not waited for.
void ToolCall::giveUp()
{
    child_->terminate();
    child_.reset();
    const auto ended = handlers_.ended;
    ended(localizedString("disksToolHangs"));
}

void ToolCall::take(const QByteArray& bytes)
{
    awaitMore();
    rest_ += bytes;
    qsizetype begin = 0;
    for (qsizetype end = rest_.indexOf('\n'); readable_ && end >= 0; end = rest_.indexOf('\n', begin)) {
        readable_ = handlers_.line(rest_.mid(begin, end - begin));
        begin = end + 1;
    }
    rest_.remove(0, begin);
    if (rest_.size() > longestLine)
        readable_ = false;
    if (!readable_) {
        rest_.clear();
        child_->terminate();
    }
}

void ToolCall::end(const TaskResult& result)
{
    child_.reset();
    silence_.invalidate();
    // A last line without its end is half of one.
    const bool whole = readable_ && rest_.isEmpty();
    const auto ended = handlers_.ended;
    if (result.status == 0)
        ended(whole ? QString() : localizedString("disksToolUnreadable"));
    else
        ended(readable_ ? toolComplaint(result, executable_) : localizedString("disksToolUnreadable"));
}

} // namespace quillon
