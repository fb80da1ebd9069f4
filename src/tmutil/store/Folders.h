#pragma once

#include <QString>

namespace quillon {

/// Where the user's Time Machine keeps its own files. Callers pass no HOME, so the password database is asked; the XDG
/// variables (XDG Base Directory Specification) win where they are set.
struct Folders {
    QString home;
    QString configuration; ///< destinations, sources and keys: worth a copy elsewhere
    QString state;         ///< what is running and what happened last
    QString cache;         ///< restic's cache

    static Folders ofUser();
};

/// Whether a small file can still be written there; true where that cannot be told.
bool hasRoom(const QString& folder);

/// Makes the folder, parents included, readable by the user only. Throws Failure.
void makePrivateFolder(const QString& path);

} // namespace quillon
