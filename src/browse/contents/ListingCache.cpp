#include "ListingCache.h"

#include "FileLock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Stands in the file once it is whole; another number is another layout.
constexpr int layout = 1;

// Rows that are written together.
constexpr int batch = 20'000;

constexpr auto fileColumns = "name, kind, size, modified, target, content"_L1;
constexpr int columnCount = 6;
constexpr auto ending = ".listing"_L1;

QVariant nullable(const std::optional<qint64>& number)
{
    return number ? QVariant(*number) : QVariant();
}

QVariant nullable(const QString& text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

} // namespace

ListingCache::ListingCache(QString file, qint64 largest)
    : file_(std::move(file))
    , largest_(largest)
    , connection_(u"listing-"_s + QUuid::createUuid().toString(QUuid::Id128))
{
    if (!QFile::exists(file_) || !open())
        return;
    QSqlQuery version(u"PRAGMA user_version"_s, database_);
    whole_ = version.next() && version.value(0).toInt() == layout;
    if (whole_)
        utimensat(AT_FDCWD, QFile::encodeName(file_).constData(), nullptr, 0); // it is used now
}

ListingCache::~ListingCache()
{
    if (!whole_)
        discard();
    close();
}

bool ListingCache::begin()
{
    discard();
    QFile file(file_);
    const bool made = file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
    file.close();
    // Neither a journal nor a wait for the disk: what does not arrive whole is made again.
    if (!made || !open() || !run(u"PRAGMA journal_mode = OFF"_s) || !run(u"PRAGMA synchronous = OFF"_s) ||
        !run(u"CREATE TABLE folders (id INTEGER PRIMARY KEY, path TEXT NOT NULL)"_s) ||
        !run(u"CREATE TABLE files (id INTEGER PRIMARY KEY, folder INTEGER NOT NULL, name TEXT NOT NULL, folded TEXT, "
             "kind INTEGER NOT NULL, size INTEGER, modified INTEGER, target TEXT, content TEXT)"_s) ||
        !run(u"INSERT INTO folders VALUES (0, '')"_s) || !database_.transaction())
        return false;
    folders_.clear();
    insertion_ = std::make_unique<QSqlQuery>(database_);
    return insertion_->prepare("INSERT INTO files (folder, folded, "_L1 + fileColumns +
                               ") VALUES (?, ?, ?, ?, ?, ?, ?, ?)"_L1);
}

bool ListingCache::add(const FileEntry& entry)
{
    // What a backup begins with lies in a folder that is none of it, and stands in the outermost one by its whole path.
    const auto around = folders_.find(folderAround(entry.path));
    const bool isRoot = around == folders_.end();
    const QString name = isRoot ? nameIn({}, entry.path) : nameIn(around->first, entry.path);
    const QString folded = foldedName(name);
    const QVariantList values{isRoot ? qint64{0} : around->second,
                              folded == name ? QVariant() : QVariant(folded),
                              name,
                              static_cast<int>(entry.kind),
                              nullable(entry.size),
                              entry.modified ? QVariant(qint64{entry.modified->time_since_epoch().count()})
                                             : QVariant(),
                              nullable(entry.target),
                              nullable(entry.content)};
    for (int place = 0; place < values.size(); ++place)
        insertion_->bindValue(place, values[place]);
    if (!insertion_->exec())
        return false;
    if (entry.kind == FileKind::Folder && !addFolder(entry.path))
        return false;
    if (++unwritten_ < batch)
        return true;
    unwritten_ = 0;
    return database_.commit() && QFileInfo(file_).size() <= largest_ && database_.transaction();
}

bool ListingCache::addFolder(const QString& path)
{
    const auto id = static_cast<qint64>(folders_.size()) + 1;
    folders_.emplace(path, id);
    QSqlQuery folder(database_);
    folder.prepare(u"INSERT INTO folders VALUES (?, ?)"_s);
    folder.addBindValue(id);
    folder.addBindValue(path);
    return folder.exec();
}

bool ListingCache::finish()
{
    insertion_.reset();
    folders_.clear();
    whole_ = database_.commit() && run(u"CREATE UNIQUE INDEX folder_paths ON folders (path)"_s) &&
             run(u"CREATE INDEX files_in_folders ON files (folder)"_s) &&
             run(u"PRAGMA user_version = %1"_s.arg(layout));
    return whole_;
}

std::optional<std::vector<FileEntry>> ListingCache::folder(const QString& path)
{
    QSqlQuery ids(database_);
    ids.prepare(u"SELECT id FROM folders WHERE path = ?"_s);
    ids.addBindValue(path.isEmpty() ? u""_s : path); // a null text would be no text
    if (!ids.exec())
        return failed();
    if (!ids.next())
        return std::nullopt;
    QSqlQuery rows(database_);
    rows.setForwardOnly(true);
    rows.prepare("SELECT "_L1 + fileColumns + " FROM files WHERE folder = ?"_L1);
    rows.addBindValue(ids.value(0));
    if (!rows.exec())
        return failed();
    std::vector<FileEntry> files;
    while (rows.next())
        files.push_back(entryOf(rows, path));
    if (rows.lastError().isValid())
        return failed();
    return files;
}

std::optional<ListingCache::Page> ListingCache::search(const NamePattern& pattern, qint64 behind, int most)
{
    const QString condition =
        pattern.isGlob ? u"coalesce(folded, name) GLOB ?"_s : u"instr(coalesce(folded, name), ?) > 0"_s;
    QSqlQuery rows(database_);
    rows.setForwardOnly(true);
    rows.prepare(u"SELECT %1, files.id, folders.path FROM files JOIN folders ON folders.id = files.folder "
                 "WHERE files.id > ? AND %2 ORDER BY files.id LIMIT ?"_s.arg(fileColumns, condition));
    rows.bindValue(0, behind);
    rows.bindValue(1, pattern.text);
    rows.bindValue(2, most);
    if (!rows.exec())
        return failed();
    Page page;
    while (rows.next()) {
        page.next = rows.value(columnCount).toLongLong();
        page.files.push_back(entryOf(rows, rows.value(columnCount + 1).toString()));
    }
    if (rows.lastError().isValid())
        return failed();
    return page;
}

bool ListingCache::open()
{
    database_ = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection_);
    database_.setDatabaseName(file_);
    return database_.open();
}

void ListingCache::close()
{
    insertion_.reset();
    if (!database_.isValid())
        return;
    database_ = {};
    QSqlDatabase::removeDatabase(connection_);
}

bool ListingCache::run(const QString& statement)
{
    return QSqlQuery(database_).exec(statement);
}

FileEntry ListingCache::entryOf(const QSqlQuery& row, const QString& folder)
{
    enum Column { Name, Kind, Size, Modified, Target, Content };
    const QString name = row.value(Name).toString();
    FileEntry entry{
        .path = name.startsWith(u'/') ? name : folder + u'/' + name,
        .kind = static_cast<FileKind>(std::clamp(row.value(Kind).toInt(), 0, static_cast<int>(FileKind::Other))),
        .target = row.value(Target).toString(),
        .content = row.value(Content).toString()};
    if (!row.isNull(Size))
        entry.size = row.value(Size).toLongLong();
    if (!row.isNull(Modified))
        entry.modified = Date(std::chrono::milliseconds(row.value(Modified).toLongLong()));
    return entry;
}

std::nullopt_t ListingCache::failed()
{
    discard();
    return std::nullopt;
}

void ListingCache::discard()
{
    close();
    whole_ = false;
    QFile::remove(file_);
}

ListingCacheFolder::ListingCacheFolder(QString path, qint64 bound)
    : path_(std::move(path))
    , bound_(bound)
{
}

std::unique_ptr<ListingCache> ListingCacheFolder::listing(const QString& key) const
{
    makePrivateFolder(path_);
    const QByteArray name = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256).toHex();
    return std::make_unique<ListingCache>(path_ + u'/' + QString::fromLatin1(name) + ending, bound_);
}

void ListingCacheFolder::trim() const
{
    const QFileInfoList files =
        QDir(path_).entryInfoList({u'*' + QString(ending)}, QDir::Files | QDir::NoSymLinks, QDir::Time); // newest first
    qint64 total = 0;
    for (const QFileInfo& file : files) {
        total += file.size();
        if (total > bound_)
            QFile::remove(file.filePath());
    }
}

} // namespace quillon
