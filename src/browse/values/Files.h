#pragma once

#include "Date.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quillon {

enum class FileKind { File, Folder, Link, Other };

/// A file, a folder or a link in a backup.
struct FileEntry {
    QString path; ///< where it was on the computer
    FileKind kind = FileKind::File;
    std::optional<qint64> size = {};
    std::optional<Date> modified = {};
    QString target = {};  ///< of a link
    QString content = {}; ///< equal for equal contents; empty where that is not known
    QString backup = {};  ///< name of the backup, where a list goes over several

    bool operator==(const FileEntry&) const = default;
};

/// Reads a line that tmutil's commands on files print with --json; nothing when it is none. A path has no "." or "..":
/// it could lie elsewhere than where it is shown.
std::optional<FileEntry> readFileLine(const QByteArray& line);

/// The name of what is listed in a folder: behind the folder's path, or the whole path of what lies elsewhere.
QString nameIn(const QString& folder, const QString& path);

/// The folder around a path; empty for what lies in the outermost one.
QString folderAround(const QString& path);

struct FileOrder {
    enum class By { Name, Size, Modified };

    By by = By::Name;
    bool descending = false;
};

/// The places of the files in that order: folders first, what is equal by name as people sort in their language,
/// numbers by their value.
std::vector<std::size_t> sortedPlaces(const std::vector<FileEntry>& files, const FileOrder& order);

/// What became of something by the next later backup.
enum class Since { Unknown, Same, Changed, Gone };

/// What became of each of `files`, held against what the later backup has in the same folder. A folder counts as the
/// same as long as it is one: what lies in it is told there.
std::vector<Since> changesSince(const std::vector<FileEntry>& files, const std::vector<FileEntry>& later);

/// What a search looks for: with * or ? a pattern for whole names, else a part of a name; letters in either case.
struct NamePattern {
    QString text; ///< folded; as SQLite's GLOB takes it where it is a pattern
    bool isGlob = false;

    bool operator==(const NamePattern&) const = default;
};
NamePattern namePattern(const QString& typed);

/// How a name is compared.
QString foldedName(const QString& name);

} // namespace quillon
