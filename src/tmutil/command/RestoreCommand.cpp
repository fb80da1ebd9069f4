#include "Commands.h"
#include "Configuration.h"
#include "Failure.h"
#include "Reports.h"
#include "Restic.h"
#include "Restore.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The word for why it failed, as the status has it of backups.
QString causeOf(const Failure& failure)
{
    static constexpr std::array words{std::pair{ExitStatus::DestinationMissing, "DestinationMissing"_L1},
                                      std::pair{ExitStatus::NoBackup, "NoBackup"_L1},
                                      std::pair{ExitStatus::PathExists, "PathExists"_L1},
                                      std::pair{ExitStatus::RestoredInPart, "Damaged"_L1},
                                      std::pair{ExitStatus::NoInput, "NoInput"_L1},
                                      std::pair{ExitStatus::CannotWrite, "CannotWrite"_L1}};
    const auto* const word = std::ranges::find(words, failure.status(), [](const auto& entry) { return entry.first; });
    if (!failure.cause().isEmpty())
        return failure.cause();
    return word != words.end() ? QString(word->second) : u"Unknown"_s;
}

/// Tells what becomes of each source: for programs by a line of JSON, for people where there was a choice.
class RestoreReport {
public:
    RestoreReport(bool json, bool isForPeople, qsizetype sources)
        : json_(json)
        , isForPeople_(isForPeople && !json)
        , sources_(sources)
    {
    }

    void setTotal(const TreeSize& total) { total_ = total; }

    void tellProgress(const TreeSize& ofThis) const
    {
        // What was asked for twice counts once in the total.
        const auto done = [](qint64 before, qint64 now, qint64 total) { return std::min(before + now, total); };
        if (json_)
            printJson({{u"event"_s, u"progress"_s},
                       {u"files"_s, done(done_.files, ofThis.files, total_.files)},
                       {u"totalFiles"_s, total_.files},
                       {u"bytes"_s, done(done_.bytes, ofThis.bytes, total_.bytes)},
                       {u"totalBytes"_s, total_.bytes}});
    }

    void tell(const QString& source, const Restored& restored)
    {
        if (restored.isDamaged)
            return tellFailure(source, restored.path, Failure(ExitStatus::RestoredInPart, restored.lost));
        ++(restored.skipped ? skipped_ : restored_);
        if (!restored.lost.isEmpty())
            remark_ = remark_.value_or(Failure(ExitStatus::RestoredInPart, restored.lost));
        if (json_) {
            QJsonObject event = eventOf(restored.skipped ? u"skipped"_s : u"restored"_s, source, restored.path);
            if (!restored.lost.isEmpty()) {
                event.insert(u"remark"_s, restored.lost);
                event.insert(u"cause"_s, u"NoAttributes"_s); // all else is a failure
            }
            printJson(event);
        } else if (isForPeople_) {
            printForPeople(QStringList(
                (restored.skipped ? u"Skipped, since it exists: %1"_s : u"Restored: %1"_s).arg(restored.path)));
        }
        done_.files += restored.size.files;
        done_.bytes += restored.size.bytes;
        if (!restored.skipped)
            tellProgress({});
    }

    void tellFailure(const QString& source, const QString& path, const Failure& failure)
    {
        ++failed_;
        areFailuresAlike_ = areFailuresAlike_ && (!failure_ || failure_->status() == failure.status());
        failure_ = failure_.value_or(failure);
        if (json_) {
            QJsonObject event = eventOf(u"failed"_s, source, path);
            event.insert(u"reason"_s, failure.message());
            event.insert(u"cause"_s, causeOf(failure));
            printJson(event);
        } else if (sources_ > 1) {
            printError(failure.message());
        }
    }

    /// Throws Failure where not all came back as it was.
    void end(bool isStopped) const
    {
        if (json_)
            printJson({{u"event"_s, u"done"_s},
                       {u"restored"_s, restored_},
                       {u"skipped"_s, skipped_},
                       {u"failed"_s, failed_}});
        if (failure_ && sources_ == 1)
            throw *failure_;
        const ExitStatus status = isStopped ? ExitStatus::Stopped
                                  : areFailuresAlike_ && restored_ + skipped_ == 0 && failure_
                                      ? failure_->status()
                                      : ExitStatus::RestoredInPart;
        if (failure_)
            throw Failure(status, u"%1 of %2 were restored."_s.arg(restored_).arg(sources_));
        if (remark_)
            throw *remark_;
    }

private:
    static QJsonObject eventOf(const QString& event, const QString& source, const QString& path)
    {
        return {{u"event"_s, event}, {u"source"_s, toldPath(source)}, {u"path"_s, toldPath(path)}};
    }

    bool json_;
    bool isForPeople_;
    qsizetype sources_;
    TreeSize total_;
    TreeSize done_;
    int restored_ = 0;
    int skipped_ = 0;
    int failed_ = 0;
    bool areFailuresAlike_ = true;
    std::optional<Failure> failure_; ///< the first
    std::optional<Failure> remark_;
};

/// Something to be restored, by the name that it was given.
using Source = std::pair<QString, PlaceInBackup>;

/// The files and bytes in all of them, as far as their backups can be read.
TreeSize sizeOf(const std::vector<Source>& sources, const Folders& folders, const StopRequest& stop)
{
    constexpr qsizetype mostPatterns = 200; // of the longest paths they fit into a command line
    TreeSize size;
    for (auto source = sources.begin(); source != sources.end();) {
        const PlaceInBackup& first = source->second;
        QStringList patterns;
        for (; source != sources.end() && source->second.snapshot.id == first.snapshot.id &&
               patterns.size() < mostPatterns;
             ++source) {
            for (const QString& path : source->second.paths())
                patterns.append(path.isEmpty() ? u"*"_s : Restic::literalPattern(path));
        }
        try {
            findFiles(Restic(first.repository, folders, &stop), {u"--snapshot"_s, first.snapshot.id}, patterns,
                      [&size](const ListedFile& file) {
                          size.files += file.kind == ListedFile::Kind::Folder ? 0 : 1;
                          size.bytes += file.size;
                      });
        } catch (const Failure&) {
            continue; // restoring tells what is damaged
        }
    }
    return size;
}

/// DST, which is taken from the operands.
RestoreTarget takeTarget(QStringList& operands, RestoreRule rule)
{
    const QFileInfo file(QDir::cleanPath(QFileInfo(operands.takeLast()).absoluteFilePath()));
    const QString folder = rule == RestoreRule::Refuse ? file.path() : file.filePath();
    if (!QFileInfo(folder).isDir())
        throw Failure(ExitStatus::NoInput, u"The folder \"%1\" does not exist."_s.arg(folder));
    return {folder, rule == RestoreRule::Refuse ? file.fileName() : QString(), rule};
}

Restored restoreInPlace(const Restore& restore, const PlaceInBackup& place, RestoreRule rule, const Folders& folders,
                        const StopRequest& stop)
{
    if (place.path.isEmpty())
        throw Failure(ExitStatus::Usage, u"All of a backup cannot be restored in its place; name folders of it."_s);
    const QString parent = place.path.section(u'/', 0, -2);
    const QStringList found = entriesToldAs({}, parent);
    if (found.size() > 1 || (found.isEmpty() && parent.contains(QChar::ReplacementCharacter)))
        throw Failure(ExitStatus::NoInput,
                      u"It cannot be told which folder \"%1\" was in; restore it to another."_s.arg(place.path));
    const QString folder = found.value(0, parent);
    MissingFolders missing(folder);
    const auto known = describe(Restic(place.repository, folders, &stop), place.snapshot, missing.paths());
    missing.make();
    Restored restored = restore.run(place, {folder.isEmpty() ? u"/"_s : folder, {}, rule});
    missing.keep(known);
    return restored;
}

} // namespace

void restore(const Folders& folders, const CommandLine& line)
{
    const auto destinations = Configuration(folders).destinations();
    QStringList names = line.operands;
    const RestoreTarget target = line.inPlace ? RestoreTarget{} : takeTarget(names, line.rule);
    RestoreReport report(line.json, line.inPlace || line.rule != RestoreRule::Refuse, names.size());
    BackupFinder finder(destinations, folders);
    std::vector<Source> sources;
    for (const QString& name : std::as_const(names)) {
        try {
            sources.emplace_back(name, finder.find(name));
        } catch (const Failure& failure) {
            report.tellFailure(name, {}, failure);
        }
    }
    const StopRequest stop; // while there is something to be cleared away
    if (line.json)
        report.setTotal(sizeOf(sources, folders, stop));
    const auto tellProgress = [&report](const TreeSize& size) { report.tellProgress(size); };
    const Restore restore(destinations, folders, stop, line.json ? Restore::ProgressHandler(tellProgress) : nullptr);
    for (const auto& [name, place] : sources) {
        try {
            report.tell(name, line.inPlace ? restoreInPlace(restore, place, line.rule, folders, stop)
                                           : restore.run(place, target));
        } catch (const Failure& failure) {
            const QString path = line.inPlace ? place.path : target.folder;
            if (!stop.isMade()) {
                report.tellFailure(name, path, failure);
                continue;
            }
            report.tellFailure(name, path, Failure(ExitStatus::Stopped, u"The restore was stopped."_s));
            break;
        }
    }
    report.end(stop.isMade());
}

} // namespace quillon
