#include "Files.h"

#include <QCollator>
#include <QDateTime>
#include <QDir>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

std::optional<FileKind> kindOf(const QString& type)
{
    if (type == "file"_L1)
        return FileKind::File;
    if (type == "folder"_L1)
        return FileKind::Folder;
    if (type == "link"_L1)
        return FileKind::Link;
    return type == "other"_L1 ? std::optional(FileKind::Other) : std::nullopt;
}

bool haveEqualContents(const FileEntry& one, const FileEntry& other)
{
    if (one.kind != other.kind)
        return false;
    switch (one.kind) {
    case FileKind::File:
        if (!one.content.isEmpty() && !other.content.isEmpty())
            return one.content == other.content;
        return one.size == other.size && one.modified == other.modified;
    case FileKind::Link:
        return one.target == other.target;
    case FileKind::Folder:
    case FileKind::Other:
        break;
    }
    return true;
}

} // namespace

std::optional<FileEntry> readFileLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const auto kind = kindOf(object["type"_L1].toString());
    FileEntry entry{.path = object["path"_L1].toString(),
                    .kind = kind.value_or(FileKind::Other),
                    .size = std::nullopt,
                    .modified = std::nullopt,
                    .target = object["target"_L1].toString(),
                    .content = object["content"_L1].toString(),
                    .backup = object["backup"_L1].toString()};
    if (!kind || !entry.path.startsWith(u'/') || QDir::cleanPath(entry.path) != entry.path)
        return std::nullopt;
    if (const QJsonValue size = object["size"_L1]; size.isDouble())
        entry.size = size.toInteger();
    const auto modified = QDateTime::fromString(object["modified"_L1].toString(), Qt::ISODateWithMs);
    if (modified.isValid())
        entry.modified = Date(std::chrono::milliseconds(modified.toMSecsSinceEpoch()));
    return entry;
}

QString nameIn(const QString& folder, const QString& path)
{
    const QString within = folder + u'/';
    const bool directly = path.startsWith(within) && path.indexOf(u'/', within.size()) < 0;
    return directly ? path.sliced(within.size()) : path;
}

QString folderAround(const QString& path)
{
    return path.left(qMax(path.lastIndexOf(u'/'), 0));
}

void sortForPeople(std::vector<FileEntry>& files)
{
    QCollator collator;
    collator.setNumericMode(true);
    std::vector<std::pair<QCollatorSortKey, std::size_t>> keys;
    keys.reserve(files.size());
    for (std::size_t place = 0; place < files.size(); ++place)
        keys.emplace_back(collator.sortKey(nameIn(folderAround(files[place].path), files[place].path)), place);
    std::ranges::stable_sort(keys, [&](const auto& one, const auto& other) {
        const bool oneIsFolder = files[one.second].kind == FileKind::Folder;
        const bool otherIsFolder = files[other.second].kind == FileKind::Folder;
        return oneIsFolder != otherIsFolder ? oneIsFolder : one.first.compare(other.first) < 0;
    });
    std::vector<FileEntry> sorted;
    sorted.reserve(files.size());
    for (const auto& [key, place] : keys)
        sorted.push_back(std::move(files[place]));
    files = std::move(sorted);
}

std::vector<Since> changesSince(const std::vector<FileEntry>& files, const std::vector<FileEntry>& later)
{
    QHash<QString, const FileEntry*> byPath;
    byPath.reserve(static_cast<qsizetype>(later.size()));
    for (const FileEntry& entry : later)
        byPath.insert(entry.path, &entry);
    std::vector<Since> changes;
    changes.reserve(files.size());
    for (const FileEntry& entry : files) {
        const FileEntry* const other = byPath.value(entry.path);
        if (!other)
            changes.push_back(Since::Gone);
        else
            changes.push_back(haveEqualContents(entry, *other) ? Since::Same : Since::Changed);
    }
    return changes;
}

NamePattern namePattern(const QString& typed)
{
    const QString folded = foldedName(typed.trimmed());
    if (!folded.contains(u'*') && !folded.contains(u'?'))
        return {folded, false};
    return {QString(folded).replace("["_L1, "[[]"_L1), true};
}

QString foldedName(const QString& name)
{
    return name.toCaseFolded();
}

} // namespace quillon
