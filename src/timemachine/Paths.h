#pragma once

#include <QString>

namespace quillon {

/// Without dots, relative to the working folder; links stay.
QString absolutePath(const QString& path);

/// The path under which a backup meets that entry: its folder is free of links, the entry may be one.
QString ownPath(const QString& path);

/// Whether the path is that folder's own or leads into it. Both are absolute and clean.
bool covers(const QString& folder, const QString& path);

} // namespace quillon
