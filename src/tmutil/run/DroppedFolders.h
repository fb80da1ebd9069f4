#pragma once

#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace quillon {

/// Of the folders that a backup leaves out without the user's word the ones that had been backed up before. `judged`
/// holds what was found out about each, 1 or 0, as long as it is left out; only of those that are new there it is asked
/// which `held` files.
QStringList droppedFolders(QVariantMap& judged, const QStringList& leftOut,
                           const std::function<QStringList(const QStringList& folders)>& held);

/// Of the paths that restic could not save the folders that are there to be read. It can't be they that kept it from
/// that: where the disk has a damaged record of one, restic takes it for the folder's contents.
QStringList readableFolders(const QStringList& unread);

} // namespace quillon
