#include "ResticOutput.h"

#include "Paths.h"
#include "Repository.h"
#include "Restic.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <iterator>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// The first counts where both stand for one.
constexpr std::array givenNames{&Snapshot::name, &Snapshot::earlierName};

} // namespace

QString Snapshot::tag(bool complete)
{
    return complete ? u"quillon"_s : u"quillon-incomplete"_s;
}

QString Snapshot::name() const
{
    return nameAt(time);
}

QString Snapshot::earlierName() const
{
    return nameAt(time.toLocalTime());
}

QString Snapshot::nameAt(const QDateTime& date) const
{
    return (mountPoint.endsWith(u'/') ? mountPoint : mountPoint + u'/') + host + u'/' +
           date.toString(u"yyyy-MM-dd-HHmmss"_s) + (complete ? QString() : u".incomplete"_s);
}

std::vector<Snapshot> snapshotsIn(const Repository& repository, const Restic& restic)
{
    if (repository.isNew())
        return {};
    repository.requireConfig();
    // Reading the list needs no lock, so it works during a prune and on a disk that cannot be written.
    const auto outcome = restic.run({u"snapshots"_s, u"--json"_s, u"--no-lock"_s});
    const auto list = QJsonDocument::fromJson(outcome.output);
    if (outcome.exitStatus != 0 || !list.isArray())
        throw outcome.failure();

    std::vector<Snapshot> snapshots;
    for (const QJsonValue entry : list.array()) {
        const QJsonArray tags = entry["tags"_L1].toArray();
        const bool own = tags.contains(Snapshot::tag(true)) || tags.contains(Snapshot::tag(false));
        if (!own && !repository.destination().bare)
            continue;
        Snapshot snapshot{.id = entry["id"_L1].toString(),
                          .time = QDateTime::fromString(entry["time"_L1].toString(), Qt::ISODateWithMs),
                          .host = entry["hostname"_L1].toString(),
                          .mountPoint = repository.destination().path,
                          .sources = entry["paths"_L1].toVariant().toStringList(),
                          .own = own,
                          .complete = !tags.contains(Snapshot::tag(false))};
        snapshots.push_back(std::move(snapshot));
    }
    std::ranges::stable_sort(snapshots, {}, &Snapshot::time);
    return snapshots;
}

QStringList unreadableSnapshots(const Restic& restic)
{
    const auto files = restic.run({u"list"_s, u"snapshots"_s, u"--no-lock"_s});
    const auto read = restic.run({u"snapshots"_s, u"--json"_s, u"--no-lock"_s});
    files.require();
    read.require();
    QStringList identifiers = QString::fromLatin1(files.output).split(u'\n', Qt::SkipEmptyParts);
    for (const QJsonValue snapshot : QJsonDocument::fromJson(read.output).array())
        identifiers.removeAll(snapshot["id"_L1].toString());
    return identifiers;
}

std::optional<QStringList> sourcesIn(const QByteArray& line)
{
    const QJsonValue sources = QJsonDocument::fromJson(line)["paths"_L1];
    return sources.isArray() ? std::optional(sources.toVariant().toStringList()) : std::nullopt;
}

std::vector<Snapshot> holdersOf(const std::vector<Snapshot>& snapshots, const QString& path)
{
    std::vector<Snapshot> found;
    for (const auto nameOf : givenNames) {
        std::ranges::copy_if(snapshots, std::back_inserter(found),
                             [&](const Snapshot& snapshot) { return covers((snapshot.*nameOf)(), path); });
        if (!found.empty())
            break;
    }
    return found;
}

std::vector<Snapshot> takeNamed(const std::vector<Snapshot>& snapshots, QStringList& names)
{
    std::vector<Snapshot> taken;
    for (const auto nameOf : givenNames) {
        for (const Snapshot& snapshot : snapshots) {
            if (std::ranges::find(taken, snapshot.id, &Snapshot::id) == taken.end() &&
                names.removeOne((snapshot.*nameOf)()))
                taken.push_back(snapshot);
        }
    }
    return taken;
}

std::vector<Snapshot> madeBy(const QStringList& hosts, std::vector<Snapshot> snapshots)
{
    std::erase_if(snapshots, [&hosts](const Snapshot& snapshot) { return !hosts.contains(snapshot.host); });
    return snapshots;
}

const Snapshot* latestOf(const std::vector<Snapshot>& snapshots, const QDateTime& now)
{
    const Snapshot* latest = nullptr;
    for (const Snapshot& snapshot : snapshots) {
        if (snapshot.complete && snapshot.time <= now && (latest == nullptr || latest->time <= snapshot.time))
            latest = &snapshot;
    }
    return latest != nullptr || snapshots.empty() ? latest : &snapshots.back();
}

QVariantMap BackupProgress::toDictionary() const
{
    QVariantMap entry{{u"Percent"_s, fraction ? QVariant(*fraction) : QVariant(qlonglong{-1})},
                      {u"bytes"_s, bytes},
                      {u"totalBytes"_s, totalBytes},
                      {u"files"_s, files},
                      {u"totalFiles"_s, totalFiles}};
    if (secondsRemaining)
        entry.insert(u"TimeRemaining"_s, *secondsRemaining);
    return entry;
}

bool Standstill::isSince(const std::optional<BackupProgress>& progress, std::chrono::steady_clock::time_point now)
{
    constexpr std::chrono::minutes longest{1};
    if (!progress || progress != told_) {
        told_ = progress;
        since_ = now;
    }
    return now - since_ >= longest;
}

BackupOutput::BackupOutput(const QStringList& sources, bool repaired)
    : emptySources_(sources)
    , isOnlySource_(sources.size() == 1)
    , repaired_(repaired)
{
}

QStringList BackupOutput::options() const
{
    QStringList options{u"--json"_s};
    if (needsItems())
        options << u"--verbose=2"_s;
    return options;
}

/// A line for every file delays a backup that finds little changed. For a source alone the number of files in the
/// summary says as much.
bool BackupOutput::needsItems() const
{
    return repaired_ || !isOnlySource_;
}

QStringList BackupOutput::unreadPaths() const
{
    QStringList paths;
    std::ranges::copy_if(complaints_, std::back_inserter(paths),
                         [this](const QString& path) { return !stored_.contains(qHash(path)); });
    paths.removeDuplicates();
    return paths;
}

bool BackupOutput::readLine(const QByteArray& line)
{
    // There is one of these for every file: they are read only while something can be learned from them. From 0.16 on
    // the end of the scan is one of them.
    if (line.startsWith(R"({"message_type":"verbose_status")")) {
        if (line.contains(R"("action":"scan_finished")"))
            scanEnded_ = true;
        else
            readItem(line);
        return false;
    }
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    const QString type = message.value("message_type"_L1).toString();
    if (type == "summary"_L1) {
        readSummary(message);
        return true;
    }
    if (type != "status"_L1)
        return false;
    if (message.value("action"_L1).toString() == "scan_finished"_L1) {
        scanEnded_ = true;
        return false;
    }

    BackupProgress now{.bytes = message.value("bytes_done"_L1).toInteger(),
                       .totalBytes = message.value("total_bytes"_L1).toInteger(),
                       .files = message.value("files_done"_L1).toInteger(),
                       .totalFiles = message.value("total_files"_L1).toInteger()};
    if (now.bytes == 0 && now.files == 0)
        return false;
    // restic estimates no time before the scan has ended, of which it tells only where it prints a line for every file.
    if (const auto seconds = message.value("seconds_remaining"_L1).toInteger(); seconds > 0) {
        scanEnded_ = true;
        now.secondsRemaining = seconds;
    }
    // Files that grow while they are read make more done than was found.
    if (scanEnded_)
        now.fraction = std::clamp(message.value("percent_done"_L1).toDouble(), 0.0, 1.0);
    progress_ = now;
    return true;
}

void BackupOutput::readSummary(const QJsonObject& message)
{
    snapshotId_ = message.value("snapshot_id"_L1).toString();
    newFiles_ = message.value("files_new"_L1).toInteger();
    changedFiles_ = message.value("files_changed"_L1).toInteger();
    bytesAdded_ = message.value("data_added"_L1).toInteger();
    const auto bytes = message.value("total_bytes_processed"_L1).toInteger();
    const auto files = message.value("total_files_processed"_L1).toInteger();
    progress_ =
        BackupProgress{.fraction = 1.0, .bytes = bytes, .totalBytes = bytes, .files = files, .totalFiles = files};
    if (isOnlySource_ && files > 0)
        emptySources_.clear();
}

void BackupOutput::readItem(const QByteArray& line)
{
    if (emptySources_.isEmpty() && !repaired_)
        return;
    const QString item = QJsonDocument::fromJson(line)["item"_L1].toString();
    if (repaired_)
        stored_.insert(qHash(item));
    if (!item.endsWith(u'/')) // a folder
        emptySources_.removeIf([&item](const QString& source) { return covers(source, item); });
}

void BackupOutput::readMessage(const QByteArray& line)
{
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    // What the scan could not read is met again by the archiver.
    if (message.value("message_type"_L1).toString() == "error"_L1 &&
        message.value("during"_L1).toString() == "archival"_L1)
        complaints_.append(message.value("item"_L1).toString());
}

} // namespace quillon
