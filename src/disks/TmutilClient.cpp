#include "TmutilClient.h"

#include "LocalizedString.h"
#include "ShownText.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

TmutilClient::TmutilClient(TaskLauncher& launcher, RunLoop& runLoop, QString executable, Seconds longestCall)
    : launcher_(launcher)
    , runLoop_(runLoop)
    , executable_(std::move(executable))
    , longestCall_(longestCall)
{
}

TmutilClient::~TmutilClient()
{
    // tmutil may be ended at any point: what it writes, it writes whole.
    if (child_)
        child_->kill();
}

void TmutilClient::call(const QStringList& arguments, Handler handler)
{
    calls_.push_back({arguments, std::move(handler)});
    if (calls_.size() == 1)
        launchNext();
}

void TmutilClient::launchNext()
{
    const QStringList& arguments = calls_.front().arguments;
    tooSlow_ = false;
    child_ = launcher_.launch({.executable = executable_,
                               .arguments = arguments,
                               .environmentName = u"command"_s,
                               .environmentValue = arguments.first(),
                               .captureOutput = true,
                               .captureErrors = true},
                              [this](const TaskResult& result) { ended(result); });
    // A repeating timer, because it does not follow a wall clock that is set back.
    limit_ = runLoop_.scheduleRepeating(longestCall_, [this] {
        tooSlow_ = true;
        child_->kill();
    });
}

void TmutilClient::ended(const TaskResult& result)
{
    limit_.invalidate();
    child_.reset();
    const bool success = result.status == 0 && result.output.has_value();
    const TmutilAnswer answer{success, result.output.value_or(QByteArray()), success ? QString() : complaintOf(result)};
    const Handler handler = std::exchange(calls_.front().handler, nullptr);
    calls_.pop_front();
    if (!calls_.empty())
        launchNext();
    handler(answer);
}

QString TmutilClient::complaintOf(const TaskResult& result) const
{
    if (tooSlow_)
        return localizedString("disksToolHangs");
    if (result.status == TaskResult::launchRefused)
        return localizedString("disksToolMissing").arg(executable_);
    QString line = QString::fromUtf8(result.errors).section(u'\n', 0, 0, QString::SectionSkipEmpty).trimmed();
    if (constexpr auto prefix = "tmutil: "_L1; line.startsWith(prefix))
        line.remove(0, prefix.size());
    return line.isEmpty() ? localizedString("disksToolFailed").arg(result.status) : shownLongText(line);
}

} // namespace quillon
