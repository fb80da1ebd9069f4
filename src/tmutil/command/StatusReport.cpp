#include "StatusReport.h"

#include "Configuration.h"
#include "Failure.h"
#include "History.h"
#include "ProcessLock.h"
#include "PropertyList.h"
#include "ReportMarks.h"
#include "Verification.h"

#include <QFileInfo>

namespace quillon {

using namespace Qt::StringLiterals;

StatusReport::StatusReport(const Folders& folders)
    : folders_(folders)
    , run_(RunState::current(folders.state))
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
        ReportMarks(folders_.state).mark(run_->runId, run_->isFinishing());
}

QVariantMap StatusReport::dictionary() const
{
    QVariantMap entry = run_ ? run_->toDictionary()
                             : QVariantMap{{u"ClientID"_s, u"com.apple.backupd"_s}, {u"Running"_s, qlonglong{0}}};
    // No backup, and not to be taken for one.
    if (!run_ && ProcessLock::holder(Verification::lockPath(folders_.state)))
        entry.insert(u"Verifying"_s, qlonglong{1});
    const QVariantMap failure = this->failure();
    if (!failure.isEmpty())
        entry.insert(u"LastFailure"_s, failure);
    return entry;
}

/// What keeps backups from being made, or else what the last ones met with.
QVariantMap StatusReport::failure() const
{
    const auto now = [](const QString& file, const QString& cause, const QString& description) {
        return LastFailure{statusDate(QFileInfo(file).lastModified()), {}, cause, description}.toDictionary();
    };
    if (!hasRoom(folders_.state))
        return now(
            folders_.state, u"NoStateSpace"_s,
            u"The disk that holds \"%1\" is full; no backup can be made until there is room."_s.arg(folders_.state));
    std::optional<QStringList> destinations;
    try {
        const Configuration configuration(folders_);
        if (!configuration.complaint().isEmpty())
            return now(configuration.file(), u"ConfigurationDamaged"_s, configuration.complaint());
        destinations.emplace();
        for (const Destination& destination : configuration.destinations())
            destinations->append(destination.id);
    } catch (const Failure& failure) {
        return now(folders_.configuration, u"ConfigurationDamaged"_s, failure.message());
    }
    if (const auto abandoned = RunState::abandoned(folders_.state))
        return abandoned->interruption().toDictionary();
    return History(folders_.state).lastFailure(destinations);
}

} // namespace quillon
