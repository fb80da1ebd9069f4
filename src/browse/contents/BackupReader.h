#pragma once

#include "Backups.h"
#include "Files.h"
#include "ListingCache.h"
#include "RunLoop.h"
#include "ToolCall.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

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
