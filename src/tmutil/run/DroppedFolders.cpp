#include "DroppedFolders.h"

#include <QFileInfo>

namespace quillon {

QStringList droppedFolders(QVariantMap& judged, const QStringList& leftOut,
                           const std::function<QStringList(const QStringList& folders)>& held)
{
    judged.removeIf([&leftOut](const auto& entry) { return !leftOut.contains(entry.key()); });
    QStringList fresh = leftOut;
    fresh.removeIf([&judged](const QString& folder) { return judged.contains(folder); });
    const QStringList lost = fresh.isEmpty() ? QStringList() : held(fresh);
    for (const QString& folder : fresh)
        judged.insert(folder, qlonglong{lost.contains(folder) ? 1 : 0});
    QStringList dropped = leftOut;
    dropped.removeIf([&judged](const QString& folder) { return !judged.value(folder).toBool(); });
    return dropped;
}

QStringList readableFolders(const QStringList& unread)
{
    QStringList folders = unread;
    folders.removeIf([](const QString& path) {
        const QFileInfo folder(path);
        return !folder.isDir() || !folder.isReadable() || !folder.isExecutable();
    });
    return folders;
}

} // namespace quillon
