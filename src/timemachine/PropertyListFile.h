#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// Reads a property list whose top level is a dictionary: an empty one where there is no file, nothing where the file
/// cannot be read or is damaged.
std::optional<QVariantMap> readPropertyListFile(const QString& path);

/// Replaces the file in one step, readable by the user only: whoever reads it, and whenever the power fails, finds the
/// old contents or the new. False when it could not be written; the old contents then stand.
bool writePropertyListFile(const QString& path, const QVariantMap& contents);

/// The same for what changes several times a second: it is not flushed to the disk, so that a power failure may leave
/// damaged contents. One writer at a time.
bool replacePropertyListFile(const QString& path, const QVariantMap& contents);

} // namespace quillon
