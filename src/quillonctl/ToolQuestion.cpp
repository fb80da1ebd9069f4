#include "ToolQuestion.h"

#include "PropertyList.h"

#include <QEventLoop>
#include <QFileInfo>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString troubleOf(const TaskResult& result, const QString& tool)
{
    if (result.status == TaskResult::launchRefused)
        return QFileInfo::exists(tool) ? u"the tool cannot be run"_s : u"the tool is not there"_s;
    if (result.status != 0)
        return u"the tool ended with status %1"_s.arg(result.status);
    if (!result.output || !result.output->isValidUtf8())
        return u"the tool printed what is no text"_s;
    return {};
}

} // namespace

ToolAnswer askTool(RunLoop& runLoop, TaskLauncher& launcher, const QString& tool, const QStringList& words,
                   std::chrono::seconds limit)
{
    TaskRequest request;
    request.executable = tool;
    request.arguments = words;
    request.environment = {u"command="_s + words.first()}; // what the application gives it too
    request.captureErrors = true;

    ToolAnswer answer;
    QEventLoop waiting;
    const auto start = runLoop.uptime();
    const auto child = launcher.launch(request, [&](const TaskResult& result) {
        answer.trouble = troubleOf(result, tool);
        answer.errors = result.errors;
        if (result.output && result.output->isValidUtf8())
            answer.output = *result.output;
        waiting.quit();
    });
    const Timer timeLimit = runLoop.scheduleAfter(limit, [&] {
        answer.trouble = u"the tool gave no answer within %1 s"_s.arg(limit.count());
        child->kill();
        waiting.quit(); // a process that waits for a dead disk outlives its end
    });
    waiting.exec();
    answer.time = runLoop.uptime() - start;
    return answer;
}

std::optional<QList<BackupDestination>> destinationsIn(const QByteArray& output)
{
    if (output.isEmpty())
        return std::nullopt;
    const auto destinations = BackupDestinations::fromOutput(output);
    if (destinations.success || propertylist::parse(output) == QVariant(QVariantMap()))
        return destinations.list;
    return std::nullopt;
}

} // namespace quillon
