#pragma once

#include "Date.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// A backup as tmutil lists it.
struct Backup {
    QString name; ///< what tmutil knows it by; a path within it is written behind
    Date date = {};
    QString disk = {}; ///< identifier of the backup disk
    QString computer = {};
    bool complete = true;
    bool damaged = false;
};

/// Reads what `tmutil listbackups -X` prints, newest first; nothing when that is not whole.
std::optional<std::vector<Backup>> readBackups(const QByteArray& answer);

/// Of backups that are newest first, the next complete one after that one, of the same computer on the same disk: what
/// an incomplete one lacks was not deleted. Null where there is none.
const Backup* nextLater(const std::vector<Backup>& backups, const Backup& backup);

/// A backup in the timeline. Texts are fit to be shown.
struct TimelineEntry {
    QString backup; ///< its name
    QString title;
    QString remark;  ///< what is wrong with it; empty where nothing is
    QString details; ///< all of it in words, for who does not see under which heading it stands

    bool operator==(const TimelineEntry&) const = default;
};

/// Backups under one heading, such as "Yesterday".
struct TimelineGroup {
    QString title;
    std::vector<TimelineEntry> entries;

    bool operator==(const TimelineGroup&) const = default;
};

/// The backups, newest first, of one disk or of several. Computers are named where there is more than one.
/// @param firstDayOfWeek 1 for Monday to 7 for Sunday
std::vector<TimelineGroup> timeline(const std::vector<Backup>& backups, Date now, int firstDayOfWeek);

/// Day and time of a backup in words.
QString backupTitle(const Backup& backup);

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
