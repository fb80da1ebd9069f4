#include "StatusReport.h"

#include "Failure.h"
#include "History.h"
#include "PropertyList.h"
#include "ReportMarks.h"

namespace quillon {

using namespace Qt::StringLiterals;

StatusReport::StatusReport(const QString& stateFolder)
    : stateFolder_(stateFolder)
    , run_(RunState::current(stateFolder))
{
}

QByteArray StatusReport::text() const
{
    const auto list = propertylist::toOldStyle(dictionary());
    if (!list)
        throw Failure(ExitStatus::StateDamaged, u"The state of the backup cannot be written as a property list."_s);
    return "Backup session status:\n" + list->trimmed() + '\n';
}

void StatusReport::markReported() const
{
    if (run_)
        ReportMarks(stateFolder_).mark(run_->runId, run_->isFinishing());
}

QVariantMap StatusReport::dictionary() const
{
    QVariantMap entry = run_ ? run_->toDictionary()
                             : QVariantMap{{u"ClientID"_s, u"com.apple.backupd"_s}, {u"Running"_s, qlonglong{0}}};
    QVariantMap failure = History(stateFolder_).lastFailure();
    if (const auto abandoned = RunState::abandoned(stateFolder_))
        failure = abandoned->interruption().toDictionary();
    if (!failure.isEmpty())
        entry.insert(u"LastFailure"_s, failure);
    return entry;
}

} // namespace quillon
