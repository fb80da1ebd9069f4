#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace quillon {

/// Whether a folder is tagged as a cache ("Cache Directory Tagging Specification"), of which restic is told to keep
/// nothing but the tag.
bool isTaggedAsCache(const QString& folder);

/// Those that are, at that folder or below it, but none in another one, and none in what is skipped.
QStringList foldersTaggedAsCache(const QString& folder, const std::function<bool(const QString& folder)>& isSkipped);

} // namespace quillon
