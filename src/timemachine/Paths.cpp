#include "Paths.h"

#include <QDir>
#include <QFileInfo>

namespace quillon {

QString absolutePath(const QString& path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

QString ownPath(const QString& path)
{
    const QFileInfo file(absolutePath(path));
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    if (folder.isEmpty() || file.fileName().isEmpty())
        return file.filePath();
    return QDir(folder).filePath(file.fileName());
}

bool covers(const QString& folder, const QString& path)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

} // namespace quillon
