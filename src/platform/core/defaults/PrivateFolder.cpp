#include "PrivateFolder.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace quillon {

bool makePrivateFolder(const QString& path)
{
    const QFileInfo folder(path);
    if (folder.isDir())
        return true;
    if (const QString above = folder.absolutePath(); above != folder.absoluteFilePath() && !makePrivateFolder(above))
        return false;
    return mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || (errno == EEXIST && QFileInfo(path).isDir());
}

} // namespace quillon
