#include "Ledger.h"

#include "FileLock.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <array>
#include <chrono>
#include <iostream>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array causes{"schedule"_L1, "retry"_L1, "user"_L1, "elsewhere"_L1};
constexpr std::array outcomes{"running"_L1, "completed"_L1, "failed"_L1, "stopped"_L1,
                              "unseen"_L1,  "skipped"_L1,   "missed"_L1, "refused"_L1};
constexpr std::array reasons{""_L1,
                             "paused"_L1,
                             "asleep"_L1,
                             "clockSet"_L1,
                             "backupRan"_L1,
                             "startedByHand"_L1,
                             "unreadable"_L1,
                             "settingsChanged"_L1,
                             "overtaken"_L1,
                             "toolRefused"_L1,
                             "incomplete"_L1,
                             "stoppedElsewhere"_L1,
                             "neverReported"_L1,
                             "notFollowed"_L1,
                             "hookFailed"_L1,
                             "asked"_L1,
                             "onBattery"_L1};

constexpr const auto& namesOf(LedgerEntry::Cause /*kind*/)
{
    return causes;
}

constexpr const auto& namesOf(LedgerEntry::Outcome /*kind*/)
{
    return outcomes;
}

constexpr const auto& namesOf(LedgerEntry::Reason /*kind*/)
{
    return reasons;
}

static_assert(causes.size() == std::size_t(LedgerEntry::Cause::Elsewhere) + 1);
static_assert(outcomes.size() == std::size_t(LedgerEntry::Outcome::Refused) + 1);
static_assert(reasons.size() == std::size_t(LedgerEntry::Reason::OnBattery) + 1);

} // namespace

QString nameOf(LedgerEntry::Cause cause)
{
    return causes.at(static_cast<std::size_t>(cause));
}

QString nameOf(LedgerEntry::Outcome outcome)
{
    return outcomes.at(static_cast<std::size_t>(outcome));
}

QString nameOf(LedgerEntry::Reason reason)
{
    return reasons.at(static_cast<std::size_t>(reason));
}

template<typename Kind>
std::optional<Kind> ledgerKindNamed(const QString& name)
{
    const auto& names = namesOf(Kind{});
    const auto found = std::ranges::find(names, name);
    return found == names.end() ? std::nullopt : std::optional(static_cast<Kind>(found - names.begin()));
}

template std::optional<LedgerEntry::Cause> ledgerKindNamed(const QString& name);
template std::optional<LedgerEntry::Outcome> ledgerKindNamed(const QString& name);
template std::optional<LedgerEntry::Reason> ledgerKindNamed(const QString& name);

namespace {

// Stands in the file; a larger number is a later version's.
constexpr int layout = 1;

constexpr auto keptFor = std::chrono::days(731);

// Who cannot write for months keeps at least the latest.
constexpr std::size_t mostUnwritten = 5000;

constexpr auto columns = "id, date, cause, outcome, reason, exit_status, detail, began, ended, disk, disk_name, bytes, "
                         "next, next_is_retry"_L1;
enum Column {
    Id,
    On,
    Cause,
    Outcome,
    Reason,
    ExitStatus,
    Detail,
    Began,
    Ended,
    Disk,
    DiskName,
    Bytes,
    Next,
    NextIsRetry
};

/// One connection, for as long as it lives.
class Connection {
public:
    explicit Connection(const QString& file, const QString& options = {})
        : name_(u"ledger-"_s + QUuid::createUuid().toString(QUuid::Id128))
        , database_(QSqlDatabase::addDatabase(u"QSQLITE"_s, name_))
    {
        database_.setDatabaseName(file);
        // Nobody reads for long, and the menu must not wait: an entry can.
        database_.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=100;"_s + options);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection()
    {
        database_ = {};
        QSqlDatabase::removeDatabase(name_);
    }

    QSqlDatabase& database() { return database_; }

private:
    QString name_;
    QSqlDatabase database_;
};

/// Whether an error will not pass: another program's table, a malformed file, or none of SQLite's at all
/// ("Result and Error Codes": 1, 11, 26).
bool isDamage(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    return code == 1 || code == 11 || code == 26;
}

int layoutOf(const QSqlDatabase& database)
{
    QSqlQuery version(u"PRAGMA user_version"_s, database);
    return version.next() ? version.value(0).toInt() : 0;
}

QVariant stored(std::optional<Date> date)
{
    return date ? QVariant(qint64{date->time_since_epoch().count()}) : QVariant();
}

template<typename Number>
QVariant stored(std::optional<Number> number)
{
    return number ? QVariant(static_cast<qint64>(*number)) : QVariant();
}

QVariantList valuesOf(const LedgerEntry& entry)
{
    return {static_cast<qint64>(entry.id),
            stored(std::optional(entry.date)),
            nameOf(entry.cause),
            nameOf(entry.outcome),
            nameOf(entry.reason),
            stored(entry.exitStatus),
            entry.detail,
            stored(entry.began),
            stored(entry.ended),
            entry.diskIdentifier,
            entry.diskName,
            stored(entry.bytes),
            stored(entry.next),
            entry.nextIsRetry};
}

std::optional<Date> dateOf(const QVariant& value)
{
    return value.isNull() ? std::nullopt : std::optional(Date(std::chrono::milliseconds(value.toLongLong())));
}

/// Nothing for what a later version has written and this one cannot tell.
std::optional<LedgerEntry> entryOf(const QSqlQuery& row)
{
    const auto cause = ledgerKindNamed<LedgerEntry::Cause>(row.value(Cause).toString());
    const auto outcome = ledgerKindNamed<LedgerEntry::Outcome>(row.value(Outcome).toString());
    if (!cause || !outcome)
        return std::nullopt;
    LedgerEntry entry{
        .id = row.value(Id).toLongLong(),
        .date = dateOf(row.value(On)).value_or(Date()),
        .cause = *cause,
        .outcome = *outcome,
        .reason =
            ledgerKindNamed<LedgerEntry::Reason>(row.value(Reason).toString()).value_or(LedgerEntry::Reason::None),
        .detail = row.value(Detail).toString(),
        .began = dateOf(row.value(Began)),
        .ended = dateOf(row.value(Ended)),
        .diskIdentifier = row.value(Disk).toString(),
        .diskName = row.value(DiskName).toString(),
        .next = dateOf(row.value(Next)),
        .nextIsRetry = row.value(NextIsRetry).toBool()};
    if (!row.isNull(ExitStatus))
        entry.exitStatus = row.value(ExitStatus).toInt();
    if (!row.isNull(Bytes))
        entry.bytes = row.value(Bytes).toLongLong();
    return entry;
}

} // namespace

SqliteLedger::SqliteLedger(QString file)
    : file_(std::move(file))
{
}

SqliteLedger::~SqliteLedger()
{
    if (!unwritten_.empty())
        flush({});
}

void SqliteLedger::write(std::span<LedgerEntry> entries, Date now)
{
    for (LedgerEntry& entry : entries) {
        // Drawn, not counted: an entry that cannot be written yet needs one too.
        while (entry.id == 0)
            entry.id = static_cast<std::int64_t>(QRandomGenerator::global()->generate64() >> 1);
        std::erase_if(unwritten_, [&entry](const LedgerEntry& other) { return other.id == entry.id; });
        if (unwritten_.size() == mostUnwritten)
            unwritten_.erase(unwritten_.begin());
        unwritten_.push_back(entry);
    }
    flush(now);
    Q_EMIT changed();
}

void SqliteLedger::flush(std::optional<Date> now)
{
    auto result = isDamaged_ ? Result::Damaged : writeAll(now);
    if (result == Result::Damaged && setAside())
        result = writeAll(now);
    if (result == Result::Done) {
        unwritten_.clear();
        lastTrouble_.clear();
    }
}

SqliteLedger::Result SqliteLedger::writeAll(std::optional<Date> now)
{
    if (!makePrivateFolder(QFileInfo(file_).path()))
        return failed(u"its folder cannot be made"_s);
    if (QFile file(file_);
        !file.exists() && !file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        return failed(file.errorString());
    Connection connection(file_);
    QSqlDatabase& database = connection.database();
    if (!database.open())
        return failed(database.lastError());
    const Result result = writeInto(database, now);
    if (result != Result::Done)
        database.rollback();
    return result;
}

SqliteLedger::Result SqliteLedger::writeInto(QSqlDatabase& database, std::optional<Date> now)
{
    QSqlQuery query(database);
    const auto trouble = [&] { return failed(query.lastError()); };
    // One wait for the disk less; a crash of the program is as safe.
    if (!query.exec(u"PRAGMA synchronous = NORMAL"_s) || !query.exec(u"BEGIN IMMEDIATE"_s))
        return trouble();
    if (const int found = layoutOf(database); found > layout)
        return failed(u"a later version of the program made it"_s);
    else if (found == 0 &&
             (!query.exec(u"CREATE TABLE entries (id INTEGER PRIMARY KEY, date INTEGER NOT NULL, cause TEXT NOT NULL, "
                          "outcome TEXT NOT NULL, reason TEXT, exit_status INTEGER, detail TEXT, began INTEGER, "
                          "ended INTEGER, disk TEXT, disk_name TEXT, bytes INTEGER, next INTEGER, "
                          "next_is_retry INTEGER)"_s) ||
              !query.exec(u"CREATE INDEX entries_by_date ON entries (date)"_s) ||
              !query.exec(u"PRAGMA user_version = %1"_s.arg(layout))))
        return trouble();
    query.prepare("REPLACE INTO entries ("_L1 + columns + ") VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_L1);
    for (const LedgerEntry& entry : unwritten_) {
        const QVariantList values = valuesOf(entry);
        for (int place = 0; place < values.size(); ++place)
            query.bindValue(place, values[place]);
        if (!query.exec())
            return trouble();
    }
    if (now) {
        query.prepare(u"DELETE FROM entries WHERE date < ?"_s);
        query.addBindValue(stored(std::optional(*now - keptFor)));
        if (!query.exec())
            return trouble();
    }
    return query.exec(u"COMMIT"_s) ? Result::Done : trouble();
}

std::optional<std::vector<LedgerEntry>> SqliteLedger::read(const LedgerFilter& filter)
{
    std::vector<LedgerEntry> entries;
    for (const LedgerEntry& entry : unwritten_) {
        if (filter.takes(entry))
            entries.push_back(entry);
    }
    const auto isUnwritten = [this](const LedgerEntry& entry) {
        return std::ranges::find(unwritten_, entry.id, &LedgerEntry::id) != unwritten_.end();
    };
    if (QFile::exists(file_)) {
        Connection connection(file_, u"QSQLITE_OPEN_READONLY"_s);
        QSqlDatabase& database = connection.database();
        if (!database.open())
            return std::nullopt;
        QSqlQuery rows(database);
        rows.setForwardOnly(true);
        // An empty file has no table yet.
        if (rows.exec(u"PRAGMA user_version"_s) && rows.next() && rows.value(0).toInt() != 0)
            rows.exec("SELECT "_L1 + columns + " FROM entries ORDER BY date DESC, began DESC"_L1);
        const std::size_t most = entries.size() + static_cast<std::size_t>(filter.most);
        while (entries.size() < most && rows.next()) {
            const auto entry = entryOf(rows);
            if (entry && filter.takes(*entry) && !isUnwritten(*entry))
                entries.push_back(*entry);
        }
        if (rows.lastError().isValid()) {
            isDamaged_ = isDamage(rows.lastError());
            return std::nullopt;
        }
    }
    std::ranges::stable_sort(entries, &LedgerEntry::isNewerThan);
    if (entries.size() > static_cast<std::size_t>(filter.most))
        entries.resize(static_cast<std::size_t>(filter.most));
    return entries;
}

bool SqliteLedger::setAside()
{
    QString aside;
    for (int number = 1; aside.isEmpty() || QFileInfo::exists(aside); ++number)
        aside = u"%1.damaged-%2"_s.arg(file_, QString::number(number));
    // What was not finished belongs to it: a new file must not take it for its own.
    const auto journal = "-journal"_L1;
    if (!QFile::rename(file_, aside))
        return false;
    QFile::rename(file_ + journal, aside + journal);
    isDamaged_ = false;
    return true;
}

SqliteLedger::Result SqliteLedger::failed(const QSqlError& error)
{
    complain(error.text());
    return isDamage(error) ? Result::Damaged : Result::Failed;
}

SqliteLedger::Result SqliteLedger::failed(const QString& trouble)
{
    complain(trouble);
    return Result::Failed;
}

void SqliteLedger::complain(const QString& trouble)
{
    const QString line = u"%1 cannot be written: %2"_s.arg(file_, trouble.simplified());
    if (line != std::exchange(lastTrouble_, line))
        std::cerr << QFileInfo(QCoreApplication::applicationFilePath()).fileName().toStdString() << ": "
                  << line.toStdString() << std::endl;
}

} // namespace quillon
