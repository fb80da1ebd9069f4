#pragma once

#include "PropertyListFile.h"

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
void needPrivateFolder(const QString& path);

/// A property list that is kept together with the version before it.
struct KeptPropertyList {
    std::optional<QVariantMap> contents; ///< of the version before where `damaged`; nothing where both are damaged
    bool damaged = false;                ///< or gone, while the version before it is there
};
KeptPropertyList readKeptPropertyList(const QString& path);

/// As writePropertyListFile(), with the version before kept as "NAME-previous.plist", and a damaged one put aside as
/// "NAME-damaged.plist".
bool writeKeptPropertyList(const QString& path, const QVariantMap& contents);

/// Removes a folder of that name and all below it, and never anything that a link leads to. Folders that their owner
/// may not write are made writable first. What cannot be removed stays.
void removeFolderTree(int parentDescriptor, const char* name);

/// The bytes in all files of a folder and of those below it, without what links lead to.
qlonglong sizeOfFolder(const QString& path);

} // namespace quillon
