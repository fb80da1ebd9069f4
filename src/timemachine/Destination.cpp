#include "Destination.h"

#include <QFileInfo>

namespace quillon {

using namespace Qt::StringLiterals;

QString Destination::repository() const
{
    return backupFolder(path) + u'/' + id;
}

bool Destination::isPresent() const
{
    return QFileInfo(repository()).isDir();
}

QString Destination::backupFolder(const QString& path)
{
    return (path.endsWith(u'/') ? path : path + u'/') + "Quillon.backups"_L1;
}

} // namespace quillon
