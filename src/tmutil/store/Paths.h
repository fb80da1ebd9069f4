#pragma once

#include <QByteArray>
#include <QString>

namespace quillon {

/// A path from the command line, where it may hold any byte: one that is no UTF-8 becomes a lone surrogate, U+DC80 to
/// U+DCFF, which encodePath() turns back.
QString decodePath(const QByteArray& path);
QByteArray encodePath(const QString& path);

/// The same on one line, for people: what a line cannot show as \n, \x1B and the like, and a backslash doubled.
QString shownPath(const QString& path);

/// Without dots, relative to the working folder; links stay.
QString absolutePath(const QString& path);

/// The path under which a backup meets that entry: its folder is free of links, the entry may be one.
QString ownPath(const QString& path);

/// The same place by a path without links, as far as it exists.
QString resolvedPath(const QString& path);

/// Whether the path is that folder's own or leads into it. Both are absolute and clean.
bool covers(const QString& folder, const QString& path);

} // namespace quillon
