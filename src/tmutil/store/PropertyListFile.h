#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// Reads a property list whose top level is a dictionary: an empty one where there is no file, nothing where the file
/// cannot be read, is damaged, or is no file but something that would be waited for.
std::optional<QVariantMap> readPropertyListFile(const QString& path);

/// Replaces the file in one step, readable by the user only: whoever reads it, and whenever the power fails, finds the
/// old contents or the new. False when it could not be written; the old contents then stand.
bool writePropertyListFile(const QString& path, const QVariantMap& contents);

/// A property list that is kept together with the version before it.
struct KeptPropertyList {
    std::optional<QVariantMap> contents; ///< of the version before where `damaged`; nothing where both are damaged
    bool damaged = false;                ///< or gone, while the version before it is there
};
KeptPropertyList readKeptPropertyList(const QString& path);

/// As writePropertyListFile(), with the version before kept as "NAME-previous.plist", and a damaged one put aside as
/// "NAME-damaged.plist".
bool writeKeptPropertyList(const QString& path, const QVariantMap& contents);

/// The same for what changes several times a second: it is not flushed to the disk, so that a power failure may leave
/// damaged contents. One writer at a time.
bool replacePropertyListFile(const QString& path, const QVariantMap& contents);

} // namespace quillon
