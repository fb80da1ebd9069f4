#include "Reports.h"

#include "Configuration.h"
#include "Destination.h"
#include "Failure.h"
#include "History.h"
#include "Listing.h"
#include "NetworkPlace.h"
#include "Paths.h"
#include "PropertyList.h"
#include "RunState.h"
#include "Text.h"
#include "Verification.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QStorageInfo>

#include <cstdio>
#include <map>

namespace quillon {

using namespace Qt::StringLiterals;

void print(const QByteArray& text)
{
    const auto size = static_cast<size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw Failure(ExitStatus::CannotWrite, u"Standard output cannot be written to."_s);
}

void print(const QStringList& lines)
{
    for (const QString& line : lines)
        print(line.toUtf8() + '\n');
}

void printForPeople(const QStringList& lines)
{
    for (const QString& line : lines)
        print(QStringList(shownText(line, line.size())));
}

void printXml(const QVariant& value)
{
    const auto list = propertylist::toXml(value);
    if (!list)
        throw Failure(ExitStatus::Configuration, u"A path cannot be written as XML."_s);
    print(*list);
}

void printJson(const QJsonObject& object)
{
    print(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

QJsonObject jsonOf(const ListedFile& file)
{
    static const std::map<ListedFile::Kind, QString> types{{ListedFile::Kind::File, u"file"_s},
                                                           {ListedFile::Kind::Folder, u"folder"_s},
                                                           {ListedFile::Kind::Link, u"link"_s},
                                                           {ListedFile::Kind::Other, u"other"_s}};
    QJsonObject object{{u"path"_s, file.path},
                       {u"type"_s, types.at(file.kind)},
                       {u"modified"_s, file.modified.toString(Qt::ISODateWithMs)},
                       {u"mode"_s, static_cast<qint64>(file.mode)}};
    if (file.kind == ListedFile::Kind::File)
        object.insert(u"size"_s, file.size);
    if (file.kind == ListedFile::Kind::Link)
        object.insert(u"target"_s, file.target);
    return object;
}

QByteArray lineOf(const ListedFile& file, const QString& name)
{
    constexpr int widthOfSize = 12;
    const bool isFile = file.kind == ListedFile::Kind::File;
    QString line = (isFile ? QString::number(file.size) : QString()).rightJustified(widthOfSize) + "  "_L1 +
                   file.modified.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s) + "  "_L1 + shownPath(name);
    if (file.kind == ListedFile::Kind::Folder)
        line += u'/';
    else if (file.kind == ListedFile::Kind::Link)
        line += " -> "_L1 + shownPath(file.target);
    return line.toUtf8() + '\n';
}

void printError(const QString& sentence)
{
    std::fprintf(stderr, "tmutil: %s\n", shownText(sentence, sentence.size()).toUtf8().constData());
}

namespace {

QLatin1StringView kindOf(const Destination& destination)
{
    return destination.isNetwork() ? "Network"_L1 : "Local"_L1;
}

} // namespace

QByteArray destinationText(const std::vector<Destination>& destinations, const History& history, const Folders& folders)
{
    if (destinations.empty())
        return "No destinations configured.\n";
    const KeyStore keys(folders.configuration);
    QString text;
    for (const Destination& destination : destinations) {
        text += destination.id == history.lastDestination() ? "> "_L1 + QString(50, u'=') : QString(52, u'=');
        text += "\nName          : "_L1 + shownText(destination.name) + "\nKind          : "_L1 + kindOf(destination);
        if (destination.isNetwork())
            text += "\nURL           : "_L1 + destination.path;
        else if (destination.isPresent())
            text += "\nMount Point   : "_L1 + shownText(destination.path, destination.path.size());
        text += "\nID            : "_L1 + destination.id + u'\n';
        if (keys.keptRecoveryKey(destination.id).isEmpty())
            text += "Recovery Key  : not kept yet; \"tmutil recoverykey -d ID\" makes one and shows it\n"_L1;
    }
    return text.toUtf8();
}

namespace {

void tellDisk(QVariantMap& entry, const Destination& disk, const Configuration& configuration, const MountTable& mounts)
{
    entry.insert(u"Path"_s, disk.path);
    if (!disk.isPresent())
        return;
    entry.insert(u"MountPoint"_s, disk.path);
    const QStorageInfo room(disk.path);
    entry.insert(u"BytesFree"_s, room.bytesAvailable());
    entry.insert(u"BytesTotal"_s, room.bytesTotal());
    if (const QString source = configuration.sourceOnDisk(disk.path, mounts); !source.isEmpty())
        entry.insert(u"SourceOnDisk"_s, source);
}

void tellPlace(QVariantMap& entry, const Destination& place, const Folders& folders)
{
    entry.insert(u"URL"_s, place.path);
    try {
        const NetworkAccess access = NetworkAccess::load(folders, place.id);
        for (const auto& [key, limit] :
             {std::pair{u"UploadLimit"_s, access.uploadLimit}, std::pair{u"DownloadLimit"_s, access.downloadLimit}}) {
            if (limit > 0)
                entry.insert(key, qlonglong{limit});
        }
        for (const auto& [key, name] : {std::pair{u"KeyFile"_s, u"key-file"_s}, std::pair{u"CAFile"_s, u"ca-file"_s},
                                        std::pair{u"Region"_s, u"region"_s}}) {
            if (access.credentials.contains(name))
                entry.insert(key, access.credentials.value(name));
        }
    } catch (const Failure&) { // whoever uses the place is told of it
    }
}

} // namespace

QByteArray destinationXml(const Configuration& configuration, const History& history, const Folders& folders,
                          const MountTable& mounts)
{
    const KeyStore keys(folders.configuration);
    QVariantList entries;
    for (const Destination& destination : configuration.destinations()) {
        QVariantMap entry{{u"ID"_s, destination.id},
                          {u"Name"_s, destination.name},
                          {u"Kind"_s, QString(kindOf(destination))},
                          {u"LastDestination"_s, qlonglong{destination.id == history.lastDestination() ? 1 : 0}}};
        if (destination.isNetwork())
            tellPlace(entry, destination, folders);
        else
            tellDisk(entry, destination, configuration, mounts);
        if (const QVariantMap failure = history.lastFailure(destination.id); !failure.isEmpty())
            entry.insert(u"LastFailure"_s, failure);
        if (const QDateTime last = history.lastBackup(destination.id); last.isValid())
            entry.insert(u"LastBackup"_s, last);
        if (const QVariantList backups = history.backups(destination.id); !backups.isEmpty())
            entry.insert(u"Backups"_s, backups);
        if (keys.keptRecoveryKey(destination.id).isEmpty())
            entry.insert(u"RecoveryKeyMissing"_s, qlonglong{1});
        entries.append(entry);
    }
    const auto xml = propertylist::toXml(QVariantMap{{u"Destinations"_s, entries}});
    if (!xml)
        throw Failure(ExitStatus::Configuration, u"The name of a backup disk cannot be written as XML."_s);
    return *xml;
}

StatusReport::StatusReport(const Folders& folders)
    : folders_(folders)
    , run_(RunState::current(folders.state))
{
}

QByteArray StatusReport::text() const
{
    const auto list = propertylist::toOldStyle(dictionary());
    if (!list)
        throw Failure(ExitStatus::StateDamaged, u"The state of the backup cannot be written as a property list."_s);
    return "Backup session status:\n" + list->trimmed() + '\n';
}

void StatusReport::markReported() const
{
    if (run_)
        ReportMarks(folders_.state).mark(run_->runId, run_->isFinishing());
}

QVariantMap StatusReport::dictionary() const
{
    QVariantMap entry = run_ ? run_->toDictionary()
                             : QVariantMap{{u"ClientID"_s, u"com.apple.backupd"_s}, {u"Running"_s, qlonglong{0}}};
    // No backup, and not to be taken for one.
    if (!run_ && ProcessLock::holder(Verification::lockPath(folders_.state)))
        entry.insert(u"Verifying"_s, qlonglong{1});
    const QVariantMap failure = this->failure();
    if (!failure.isEmpty())
        entry.insert(u"LastFailure"_s, failure);
    return entry;
}

/// What keeps backups from being made, or else what the last ones met with.
QVariantMap StatusReport::failure() const
{
    const auto now = [](const QString& file, const QString& cause, const QString& description) {
        return LastFailure{statusDate(QFileInfo(file).lastModified()), {}, cause, description}.toDictionary();
    };
    if (!hasRoom(folders_.state))
        return now(
            folders_.state, u"NoStateSpace"_s,
            u"The disk that holds \"%1\" is full; no backup can be made until there is room."_s.arg(folders_.state));
    std::optional<QStringList> destinations;
    try {
        const Configuration configuration(folders_);
        if (!configuration.complaint().isEmpty())
            return now(configuration.file(), u"ConfigurationDamaged"_s, configuration.complaint());
        destinations.emplace();
        for (const Destination& destination : configuration.destinations())
            destinations->append(destination.id);
    } catch (const Failure& failure) {
        return now(folders_.configuration, u"ConfigurationDamaged"_s, failure.message());
    }
    if (const auto abandoned = RunState::abandoned(folders_.state))
        return abandoned->interruption().toDictionary();
    return History(folders_.state).lastFailure(destinations);
}

} // namespace quillon
