#include "ReportMarks.h"

#include "FolderTree.h"
#include "Folders.h"

#include <QFile>

#include <fcntl.h>

namespace quillon {

using namespace Qt::StringLiterals;

ReportMarks::ReportMarks(const QString& stateFolder)
    : folder_(stateFolder + "/reported"_L1)
{
}

void ReportMarks::clear() const
{
    QFile::remove(folder_); // should it be a link: not what that leads to
    removeFolderTree(AT_FDCWD, QFile::encodeName(folder_).constData());
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
