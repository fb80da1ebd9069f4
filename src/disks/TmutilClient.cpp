#include "TmutilClient.h"

#include "LocalizedString.h"
#include "ShownText.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

TmutilClient::TmutilClient(TaskLauncher& launcher, RunLoop& runLoop, QString executable, Seconds longestCall)
    : executable_(executable)
    , longestCall_(longestCall)
    , queue_(launcher, runLoop, std::move(executable))
{
}

void TmutilClient::call(const QStringList& arguments, const Handler& handler)
{
    queue_.submit({.command = arguments.first(),
                   .arguments = arguments.mid(1),
                   .ended =
                       [this, handler](const TaskResult& result, bool tooSlow) {
                           const bool success = result.status == 0 && result.output;
                           handler({success, result.output.value_or(QByteArray()),
                                    success ? QString() : complaintOf(result, tooSlow)});
                       },
                   .longest = longestCall_});
}

QString TmutilClient::complaintOf(const TaskResult& result, bool tooSlow) const
{
    if (tooSlow)
        return localizedString("disksToolHangs");
    if (result.status == TaskResult::launchRefused)
        return localizedString("disksToolMissing").arg(executable_);
    QString line = QString::fromUtf8(result.errors).section(u'\n', 0, 0, QString::SectionSkipEmpty).trimmed();
    if (constexpr auto prefix = "tmutil: "_L1; line.startsWith(prefix))
        line.remove(0, prefix.size());
    return line.isEmpty() ? localizedString("disksToolFailed").arg(result.status) : shownLongText(line);
}

} // namespace quillon
