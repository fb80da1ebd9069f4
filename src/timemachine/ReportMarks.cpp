#include "ReportMarks.h"

#include "Folders.h"

#include <QDir>
#include <QFile>

namespace quillon {

using namespace Qt::StringLiterals;

ReportMarks::ReportMarks(const QString& stateFolder)
    : folder_(stateFolder + "/reported"_L1)
{
}

void ReportMarks::clear() const
{
    QDir(folder_).removeRecursively();
    makePrivateFolder(folder_);
}

void ReportMarks::mark(const QString& runId, bool finishing) const
{
    if (QFile file(path(runId, finishing)); !file.exists())
        file.open(QIODevice::WriteOnly);
}

bool ReportMarks::isReported(const QString& runId) const
{
    return QFile::exists(path(runId, false)) || isFinishingReported(runId);
}

bool ReportMarks::isFinishingReported(const QString& runId) const
{
    return QFile::exists(path(runId, true));
}

QString ReportMarks::path(const QString& runId, bool finishing) const
{
    return folder_ + u'/' + runId + (finishing ? "-finishing"_L1 : "-running"_L1);
}

} // namespace quillon
