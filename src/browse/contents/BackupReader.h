#pragma once

#include "Backups.h"
#include "ListingCache.h"
#include "RunLoop.h"
#include "Setup.h"
#include "Task.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// One call of tmutil that runs beside others and tells line by line, so that a million of them need no room. When it
/// goes away, the tool is asked to end and nothing more is told.
class ToolCall {
public:
    struct Handlers {
        /// Takes a line; false where it is not one of those expected, which ends the call. It must not destroy the
        /// call.
        std::function<bool(const QByteArray& line)> line;
        /// Called once, in a later turn, with what went wrong in a line for people, or nothing. It may destroy the
        /// call.
        std::function<void(const QString& complaint)> ended;
    };

    /// A call that tells nothing for longer than `longestSilence` is given up.
    ToolCall(const Setup::Services& services, const QStringList& arguments, Handlers handlers,
             std::optional<Seconds> longestSilence = {});
    ToolCall(const ToolCall&) = delete;
    ToolCall& operator=(const ToolCall&) = delete;
    ~ToolCall();

    /// Asks the tool to end; the end is told as any other.
    void stop();

private:
    void take(const QByteArray& bytes);
    void end(const TaskResult& result);
    void awaitMore();
    void giveUp();

    Handlers handlers_;
    RunLoop& runLoop_;
    QString executable_;
    std::optional<Seconds> longestSilence_;
    Timer silence_;
    QByteArray rest_; ///< of the output: a line that is not whole yet
    bool readable_ = true;
    std::unique_ptr<RunningTask> child_;
};

/// Tells what one backup holds: from what is kept of it, else by asking tmutil.
class BackupReader {
public:
    /// What lies in a folder, or what went wrong.
    using FilesTaker = std::function<void(const std::vector<FileEntry>& files, const QString& complaint)>;
    /// How many entries are read, and whether that is all.
    using FillWatcher = std::function<void(qint64 entries, bool done)>;

    /// Services and folder must outlive this object.
    BackupReader(const Setup::Services& services, const ListingCacheFolder& kept, Backup backup);

    const Backup& backup() const { return backup_; }
    bool isWhole() const { return kept_->isWhole(); }

    /// Asks for a folder in place of the one asked for before, which is not told any more. What is kept is told at
    /// once.
    void list(const QString& folder, const FilesTaker& taker);

    /// Reads the whole backup in a while, so that nothing has to be asked any more; a second call does nothing.
    void fill(const FillWatcher& watcher);

    /// A part of what a search finds, while the backup is whole.
    ListingCache::Page search(const NamePattern& pattern, qint64 behind, int most);

private:
    bool take(const QByteArray& line);
    void startFilling();
    bool keep(const QByteArray& line);
    void endFilling(const QString& complaint);

    const Setup::Services& services_;
    const ListingCacheFolder& folder_;
    Backup backup_;
    std::unique_ptr<ListingCache> kept_;
    std::vector<FileEntry> listed_;
    std::unique_ptr<ToolCall> listing_;
    FillWatcher watcher_;
    qint64 filled_ = 0;
    Timer delay_;
    std::unique_ptr<ToolCall> filling_;
};

} // namespace quillon
