#include "RunLog.h"

#include "FileLock.h"
#include "PropertyListFile.h"

#include <QDir>
#include <QUuid>

namespace quillon {

using namespace Qt::StringLiterals;

QString statusDate(const QDateTime& date)
{
    return date.toUTC().toString(u"yyyy-MM-dd HH:mm:ss '+0000'"_s);
}

QVariantMap LastFailure::toDictionary() const
{
    QVariantMap entry{
        {u"Date"_s, date}, {u"DestinationID"_s, destinationId}, {u"Cause"_s, cause}, {u"Description"_s, description}};
    if (unreadFiles > 0)
        entry.insert(u"UnreadFiles"_s, unreadFiles);
    return entry;
}

namespace {

constexpr qsizetype keptRuns = 200;

QString folderOf(const QString& stateFolder)
{
    return stateFolder + "/log"_L1;
}

/// Names begin with the date, so that they sort by it.
QStringList logFilesIn(const QString& folder)
{
    return QDir(folder).entryList({u"*.plist"_s}, QDir::Files, QDir::Name);
}

RunLog runLogFrom(const QVariantMap& entry)
{
    const auto text = [&entry](const QString& key) { return entry.value(key).toString(); };
    const auto number = [&entry](const QString& key) { return entry.value(key).toLongLong(); };
    return {.begun = text(u"Begun"_s),
            .ended = text(u"Ended"_s),
            .destinationId = text(u"DestinationID"_s),
            .disk = text(u"Disk"_s),
            .result = text(u"Result"_s),
            .description = text(u"Description"_s),
            .backup = text(u"Backup"_s),
            .files = number(u"Files"_s),
            .newFiles = number(u"NewFiles"_s),
            .changedFiles = number(u"ChangedFiles"_s),
            .bytesAdded = number(u"BytesAdded"_s),
            .unread = entry.value(u"Unread"_s).toStringList(),
            .words = text(u"Words"_s)};
}

/// What is no character of XML could not be kept.
QString storable(QString text)
{
    for (QChar& character : text) {
        if (!character.isPrint() && !character.isSpace() && !character.isSurrogate())
            character = QChar::ReplacementCharacter;
    }
    return text;
}

} // namespace

bool RunLog::write(const QString& stateFolder) const
{
    const QString folder = folderOf(stateFolder);
    if (!makePrivateFolder(folder))
        return false;
    QVariantList paths;
    for (const QString& path : unread)
        paths.append(storable(path));
    const QString name = QString(begun).remove(u':').replace(u' ', u'-').left(17) + u'-' +
                         QUuid::createUuid().toString(QUuid::Id128).left(8) + ".plist"_L1;
    const bool written = replacePropertyListFile(folder + u'/' + name, {{u"Begun"_s, begun},
                                                                        {u"Ended"_s, ended},
                                                                        {u"DestinationID"_s, destinationId},
                                                                        {u"Disk"_s, disk},
                                                                        {u"Result"_s, result},
                                                                        {u"Description"_s, storable(description)},
                                                                        {u"Backup"_s, backup},
                                                                        {u"Files"_s, files},
                                                                        {u"NewFiles"_s, newFiles},
                                                                        {u"ChangedFiles"_s, changedFiles},
                                                                        {u"BytesAdded"_s, bytesAdded},
                                                                        {u"Unread"_s, paths},
                                                                        {u"Words"_s, storable(words)}});
    QStringList names = logFilesIn(folder);
    for (; names.size() > keptRuns; names.removeFirst())
        QFile::remove(folder + u'/' + names.first());
    return written;
}

std::vector<RunLog> RunLog::all(const QString& stateFolder)
{
    std::vector<RunLog> runs;
    for (const QString& name : logFilesIn(folderOf(stateFolder))) {
        if (const auto contents = readPropertyListFile(folderOf(stateFolder) + u'/' + name); contents)
            runs.push_back(runLogFrom(*contents));
    }
    return runs;
}

QString RunLog::line() const
{
    return u"%1  %2  \"%3\"  %4 new, %5 changed, %6 not read%7"_s.arg(begun, result.leftJustified(10), disk)
        .arg(newFiles)
        .arg(changedFiles)
        .arg(unread.size())
        .arg(backup.isEmpty() ? QString() : u"  "_s + backup);
}

QStringList RunLog::text() const
{
    QStringList lines{u"Begun:         "_s + begun,
                      u"Ended:         "_s + ended,
                      u"Disk:          %1 (%2)"_s.arg(disk, destinationId),
                      u"Result:        "_s + result,
                      u"Backup:        "_s + backup,
                      u"Files:         %1, of which %2 new and %3 changed"_s.arg(files).arg(newFiles).arg(changedFiles),
                      u"Bytes added:   "_s + QString::number(bytesAdded)};
    if (!description.isEmpty())
        lines.append(u"Remark:        "_s + description);
    for (const QString& path : unread)
        lines.append(u"Not read:      "_s + path);
    for (const QString& line : words.split(u'\n', Qt::SkipEmptyParts))
        lines.append(u"restic:        "_s + line);
    return lines;
}

} // namespace quillon
