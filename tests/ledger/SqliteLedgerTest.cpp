#include "Ledger.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <chrono>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Date now{1'800'000'000s};

LedgerEntry completed(Date date, const QString& disk = u"A"_s)
{
    return {.date = date, .outcome = LedgerEntry::Outcome::Completed, .diskIdentifier = disk};
}

} // namespace

class LedgerFile : public testing::Test {
protected:
    void add(LedgerEntry entry) { ledger_.write({&entry, 1}, now); }
    /// Days before now, as another process finds them.
    std::string daysRead(const LedgerFilter& filter = {}) const
    {
        const auto entries = SqliteLedger(file_).read(filter);
        if (!entries)
            return "unreadable";
        QStringList days;
        for (const LedgerEntry& entry : *entries)
            days.append(QString::number((now - entry.date) / 24h));
        return days.join(u' ').toStdString();
    }
    void overwrite(qint64 place, const QByteArray& bytes) const
    {
        QFile file(file_);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(place) && file.write(bytes) == bytes.size());
    }
    QStringList files() const { return QDir(QFileInfo(file_).path()).entryList(QDir::Files); }
    void execute(const QString& statement) const
    {
        {
            auto other = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"other"_s);
            other.setDatabaseName(file_);
            ASSERT_TRUE(other.open());
            EXPECT_TRUE(QSqlQuery(other).exec(statement));
        }
        QSqlDatabase::removeDatabase(u"other"_s);
    }

    QTemporaryDir folder_;
    QString file_ = folder_.filePath(u"state/ledger.sqlite"_s);
    SqliteLedger ledger_{file_};
};

TEST_F(LedgerFile, KeepsEntriesWholeAndForTheUserAlone)
{
    EXPECT_EQ(daysRead(), "");
    LedgerEntry entry{.date = now,
                      .cause = LedgerEntry::Cause::Retry,
                      .reason = LedgerEntry::Reason::NotFollowed,
                      .exitStatus = -1,
                      .detail = u"it's \"so\""_s,
                      .began = now + 1ms,
                      .ended = now + 2s,
                      .diskIdentifier = u"A"_s,
                      .diskName = u"Büro, 💾"_s,
                      .bytes = 1LL << 40,
                      .next = now + 1h,
                      .nextIsRetry = true};
    ledger_.write({&entry, 1}, now);
    ASSERT_NE(entry.id, 0);
    EXPECT_EQ(SqliteLedger(file_).read(), std::vector{entry});
    EXPECT_FALSE(QFile::permissions(file_) & (QFile::ReadGroup | QFile::ReadOther));
    entry.outcome = LedgerEntry::Outcome::Refused;
    ledger_.write({&entry, 1}, now);
    EXPECT_EQ(SqliteLedger(file_).read(), std::vector{entry});
}

TEST_F(LedgerFile, GivesTheNewestOfWhatIsWantedAndForgetsAfterTwoYears)
{
    for (const int day : {700, 3, 1, 2, 740})
        add(completed(now - day * 24h, day == 2 ? u"B"_s : u"A"_s));
    EXPECT_EQ(daysRead(), "1 2 3 700");
    EXPECT_EQ(daysRead({.most = 2}), "1 2");
    EXPECT_EQ(daysRead({.disk = u"A"_s, .most = 2}), "1 3");
    EXPECT_EQ(daysRead({.outcome = LedgerEntry::Outcome::Failed}), "");
}

TEST_F(LedgerFile, SetsADamagedFileAsideAndBeginsANewOne)
{
    add(completed(now));
    overwrite(0, QByteArray(5000, 'x'));
    EXPECT_EQ(daysRead(), "unreadable");
    add(completed(now - 24h));
    EXPECT_EQ(daysRead(), "1");
    overwrite(4096, QByteArray(4096, 'x')); // the rows
    EXPECT_FALSE(ledger_.read());
    add(completed(now - 48h));
    EXPECT_EQ(daysRead(), "2");
    EXPECT_EQ(files(), (QStringList{u"ledger.sqlite"_s, u"ledger.sqlite.damaged-1"_s, u"ledger.sqlite.damaged-2"_s}));
}

TEST_F(LedgerFile, KeepsInMemoryWhatCannotBeWrittenAndLeavesALaterVersionsFileAlone)
{
    ASSERT_TRUE(QDir().mkpath(file_)); // nothing can be opened there
    add(completed(now));
    EXPECT_FALSE(ledger_.read());
    ASSERT_TRUE(QDir().rmdir(file_));
    EXPECT_EQ(ledger_.read()->size(), 1U);
    add(completed(now - 24h));
    EXPECT_EQ(daysRead(), "0 1");

    execute(u"PRAGMA user_version = 2"_s);
    add(completed(now - 48h));
    EXPECT_EQ(daysRead(), "0 1");
    EXPECT_EQ(ledger_.read()->size(), 3U);
    EXPECT_EQ(files(), QStringList{u"ledger.sqlite"_s});
}

} // namespace quillon
