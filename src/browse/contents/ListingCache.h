#pragma once

#include "Backups.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// All that one backup holds, in a file of SQLite's that can be made again at any time. Whatever goes wrong with it,
/// the file is removed and the listing counts as none.
class ListingCache {
public:
    /// Is not filled beyond that many bytes.
    ListingCache(QString file, qint64 largest);
    ListingCache(const ListingCache&) = delete;
    ListingCache& operator=(const ListingCache&) = delete;
    /// One that was not filled to its end is removed.
    ~ListingCache();

    /// Whether all of the backup is in it.
    bool isWhole() const { return whole_; }

    /// Fills an empty one: what a folder holds comes behind the folder. False where the file cannot take it.
    bool begin();
    bool add(const FileEntry& entry);
    bool finish();
    /// Removes the file; nothing is in it any more.
    void discard();

    /// What lies directly in a folder, in no order; nothing where no such folder is known.
    std::optional<std::vector<FileEntry>> folder(const QString& path);

    /// A part of what a search finds: what comes behind that place, and where the next part begins.
    struct Page {
        std::vector<FileEntry> files;
        qint64 next = 0;
    };
    std::optional<Page> search(const NamePattern& pattern, qint64 behind, int most);

private:
    bool open();
    void close();
    bool run(const QString& statement);
    bool addFolder(const QString& path);
    static FileEntry entryOf(const QSqlQuery& row, const QString& folder);
    std::nullopt_t failed();

    QString file_;
    qint64 largest_;
    QString connection_; ///< Qt's name for it
    QSqlDatabase database_;
    std::unique_ptr<QSqlQuery> insertion_;
    std::map<QString, qint64> folders_; ///< while it is filled
    int unwritten_ = 0;
    bool whole_ = false;
};

/// The folder of those files, for the user alone. It keeps what was used last, within its bound.
class ListingCacheFolder {
public:
    static constexpr qint64 usualBound = qint64{512} * 1024 * 1024;

    explicit ListingCacheFolder(QString path, qint64 bound = usualBound);

    /// The listing that belongs to that key, whole or empty. It counts as used now.
    std::unique_ptr<ListingCache> listing(const QString& key) const;

    /// Removes what was used longest ago until the rest is within the bound. Open files end with whoever has them open.
    void trim() const;

private:
    QString path_;
    qint64 bound_;
};

} // namespace quillon
