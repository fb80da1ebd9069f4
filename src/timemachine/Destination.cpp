#include "Destination.h"

#include "RepositoryFolder.h"

#include <QDir>

namespace quillon {

using namespace Qt::StringLiterals;

QString Destination::repository() const
{
    return bare ? path : backupFolder(path) + u'/' + id;
}

bool Destination::isPresent() const
{
    return RepositoryFolder::open(*this).has_value();
}

QString Destination::absence() const
{
    // An empty mount point, or none, stands for a disk that is not connected.
    if (bare || QDir(path).isEmpty())
        return u"The backup disk \"%1\" is not there."_s.arg(name);
    return u"The disk at \"%1\" has no backups of yours: it is another one, or has been erased. To begin anew on it, "
           "set it again with \"tmutil setdestination\"."_s.arg(path);
}

QString Destination::backupFolder(const QString& path)
{
    return (path.endsWith(u'/') ? path : path + u'/') + "Quillon.backups"_L1;
}

} // namespace quillon
