#include "ToolCall.h"

#include "LocalizedString.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// A path has 4096 bytes at most, each of which may take six characters.
constexpr qsizetype longestLine = qsizetype{256} * 1024;

} // namespace

ToolCall::ToolCall(const Setup::Services& services, const QStringList& arguments, Handlers handlers)
    : handlers_(std::move(handlers))
    , executable_(services.tmutil)
{
    child_ = services.launcher.launch({.executable = executable_,
                                       .arguments = arguments,
                                       .environment = {u"command="_s + arguments.first()},
                                       .captureErrors = true,
                                       .takeOutput = [this](const QByteArray& bytes) { take(bytes); }},
                                      [this](const TaskResult& result) { end(result); });
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

void ToolCall::take(const QByteArray& bytes)
{
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
    // A last line without its end is half of one.
    const bool whole = readable_ && rest_.isEmpty();
    const auto ended = handlers_.ended;
    if (result.status == 0)
        ended(whole ? QString() : localizedString("disksToolUnreadable"));
    else
        ended(readable_ ? toolComplaint(result, executable_) : localizedString("disksToolUnreadable"));
}

} // namespace quillon
