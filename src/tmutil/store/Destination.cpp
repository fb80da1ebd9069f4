#include "Destination.h"

#include "RepositoryFolder.h"
#include "ShownText.h"

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
    if (const QString trap = RepositoryFolder::trap(*this); !trap.isEmpty())
        return u"\"%1\" is neither a file nor a folder, or is a link, and would keep these backups from being read. "
               "Whoever can change the disk has put it there. Remove it."_s.arg(shownLongText(trap));
    if (RepositoryFolder::contents(*this) == RepositoryFolder::Contents::Foreign)
        return u"\"%1\" is not yours, or leads elsewhere."_s.arg(repository());
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
