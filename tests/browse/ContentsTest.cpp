#include "AnsweringLauncher.h"
#include "BackupReader.h"
#include "FakeServices.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

FileEntry entry(const QString& path, FileKind kind = FileKind::File, std::optional<qint64> size = {})
{
    return {.path = path, .kind = kind, .size = size};
}

QStringList paths(const std::vector<FileEntry>& files)
{
    QStringList paths;
    for (const FileEntry& file : files)
        paths.append(file.path);
    paths.sort();
    return paths;
}

/// A whole listing of a home folder below a folder that is not backed up itself.
void fill(ListingCache& listing)
{
    ASSERT_TRUE(listing.begin());
    FileEntry rich{.path = u"/home/me/Straße [1].TXT"_s,
                   .kind = FileKind::File,
                   .size = 3'000'000'000,
                   .modified = Date(1'795'169'472'123ms),
                   .content = u"7f"_s};
    for (const FileEntry& file :
         {entry(u"/home/me"_s, FileKind::Folder), rich, entry(u"/home/me/sub"_s, FileKind::Folder),
          entry(u"/home/me/sub/notes.txt"_s, FileKind::File, 0),
          FileEntry{.path = u"/home/me/sub/link"_s, .kind = FileKind::Link, .target = u"../x"_s}})
        ASSERT_TRUE(listing.add(file));
    ASSERT_TRUE(listing.finish());
    EXPECT_EQ(listing.folder(u"/home/me"_s)->front().path, rich.path);
    EXPECT_EQ(listing.folder(u"/home/me"_s)->front(), rich) << "nothing is lost";
}

class KeptListings : public testing::Test {
protected:
    QStringList kept() const { return QDir(path_).entryList({u"*.listing"_s}, QDir::Files); }

    QTemporaryDir root_;
    QString path_ = root_.filePath(u"cache/browse"_s);
};

} // namespace

TEST_F(KeptListings, AnswerWhatWasReadWholeAlsoNextTime)
{
    const ListingCacheFolder folder(path_);
    fill(*folder.listing(u"a"_s));
    const auto listing = folder.listing(u"a"_s);
    ASSERT_TRUE(listing->isWhole());
    EXPECT_FALSE(folder.listing(u"b"_s)->isWhole());
    EXPECT_EQ(paths(*listing->folder({})), QStringList(u"/home/me"_s));
    EXPECT_EQ(paths(*listing->folder(u"/home/me/sub"_s)),
              QStringList({u"/home/me/sub/link"_s, u"/home/me/sub/notes.txt"_s}));
    EXPECT_FALSE(listing->folder(u"/home"_s));
    const struct {
        QString typed;
        QStringList found;
    } rows[] = {{u"STRASSE"_s, {}},
                {u"straße"_s, {u"/home/me/Straße [1].TXT"_s}},
                {u"[1]*"_s, {}},
                {u"*[1]*"_s, {u"/home/me/Straße [1].TXT"_s}},
                {u"*.txt"_s, {u"/home/me/Straße [1].TXT"_s, u"/home/me/sub/notes.txt"_s}},
                {u"l?nk"_s, {u"/home/me/sub/link"_s}},
                {u"%"_s, {}}};
    for (const auto& row : rows)
        EXPECT_EQ(paths(listing->search(namePattern(row.typed), 0, 10)->files), row.found) << row.typed.toStdString();
    const auto first = listing->search(namePattern(u"*.txt"_s), 0, 1);
    EXPECT_EQ(paths(listing->search(namePattern(u"*.txt"_s), first->next, 1)->files),
              QStringList(u"/home/me/sub/notes.txt"_s))
        << "in parts";
    EXPECT_EQ(QFileInfo(path_).permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther), 0);
    EXPECT_EQ(QFile::permissions(path_ + u'/' + kept().first()) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST_F(KeptListings, AreThrownAwayWhenTheyAreNotWholeOrDamaged)
{
    const ListingCacheFolder folder(path_);
    {
        const auto half = folder.listing(u"a"_s);
        ASSERT_TRUE(half->begin() && half->add(entry(u"/x"_s)));
    }
    EXPECT_TRUE(kept().isEmpty());
    fill(*folder.listing(u"a"_s));
    {
        QFile file(path_ + u'/' + kept().first());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        constexpr int page = 4096;
        file.seek(page);
        file.write(QByteArray(static_cast<int>(file.size()) - page, 'x'));
    }
    {
        const auto damaged = folder.listing(u"a"_s);
        EXPECT_FALSE(damaged->folder(u"/home/me"_s));
        EXPECT_FALSE(damaged->isWhole());
    }
    EXPECT_TRUE(kept().isEmpty());
    const auto again = folder.listing(u"a"_s);
    fill(*again);
}

TEST_F(KeptListings, GoOldestFirstBeyondTheBoundAndNoneIsLargerThanIt)
{
    const ListingCacheFolder folder(path_);
    fill(*folder.listing(u"a"_s));
    const qint64 size = QFileInfo(path_ + u'/' + kept().first()).size();
    fill(*folder.listing(u"b"_s));
    const QStringList before = kept();
    const auto day = [this](const QString& name, int number) {
        QFile file(path_ + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime(QDate(2026, 1, number), QTime(0, 0)), QFileDevice::FileModificationTime);
    };
    day(before[0], 2);
    day(before[1], 3);
    folder.listing(u"a"_s); // is used now, whichever of them it is
    ListingCacheFolder(path_, size).trim();
    ASSERT_EQ(kept().size(), 1);
    EXPECT_TRUE(folder.listing(u"a"_s)->isWhole());

    const auto bounded = ListingCacheFolder(path_, size).listing(u"c"_s);
    ASSERT_TRUE(bounded->begin());
    bool taken = true;
    for (int number = 0; taken && number < 100'000; ++number)
        taken = bounded->add(entry(u"/h/"_s + QString::number(number)));
    EXPECT_FALSE(taken);
}

namespace {

class ReaderOfABackup : public testing::Test {
protected:
    ReaderOfABackup()
    {
        launcher_.answers[u"listfiles --json -- /m/d/h/1/home"_s] = R"({"path":"/home/b","type":"file"})"
                                                                    "\n"
                                                                    R"({"path":"/home/a","type":"folder"})"
                                                                    "\n";
        launcher_.answers[u"listfiles -r --json -- /m/d/h/1"_s] =
            R"({"path":"/home","type":"folder"})"
            "\n" +
            launcher_.answers[u"listfiles --json -- /m/d/h/1/home"_s];
    }

    void list(const QString& folder)
    {
        reader_.list(folder, [this](const std::vector<FileEntry>& files, const QString& complaint) {
            answers_.append(complaint.isEmpty() ? paths(files).join(u' ') : u"failed"_s);
        });
    }

    QTemporaryDir root_;
    VirtualRunLoop runLoop_{Date(1'000'000s)};
    AnsweringLauncher launcher_{runLoop_};
    FakeAlerts alerts_;
    Setup::Services services_{launcher_, runLoop_, alerts_, u"tmutil"_s};
    ListingCacheFolder folder_{root_.path()};
    BackupReader reader_{services_, folder_, {.name = u"/m/d/h/1"_s}};
    QStringList answers_;
};

} // namespace

TEST_F(ReaderOfABackup, TellsOfTheFolderAskedForLastAlone)
{
    list(u"/elsewhere"_s);
    list(u"/home"_s);
    runLoop_.advance(1s);
    EXPECT_EQ(answers_, QStringList(u"/home/a /home/b"_s));
    EXPECT_EQ(launcher_.liveChildren(), 0);
    list(u"/elsewhere"_s);
    runLoop_.advance(1s);
    EXPECT_EQ(answers_.last(), u"failed"_s);
}

TEST_F(ReaderOfABackup, AsksNoMoreOnceItHasReadAll)
{
    bool done = false;
    reader_.fill([&done](qint64, bool all) { done = all; });
    EXPECT_TRUE(launcher_.launched().isEmpty()) << "who passes through does not set the disk to work";
    runLoop_.advance(2s);
    ASSERT_TRUE(done && reader_.isWhole());
    launcher_.answers.clear();
    list(u"/home"_s);
    EXPECT_EQ(answers_, QStringList(u"/home/a /home/b"_s)) << "at once";
    EXPECT_EQ(paths(reader_.search(namePattern(u"A"_s), 0, 10).files), QStringList(u"/home/a"_s));
}

TEST_F(ReaderOfABackup, KeepsNothingOfAListingThatBreaksOff)
{
    for (const QByteArray& broken : {QByteArray("{\"path\":\"/home\",\"type\":\"folder\"}\n{\"pa"),
                                     QByteArray("{\"path\":\"/home\",\"type\":\"folder\"}\nwords\n")}) {
        launcher_.answers[u"listfiles -r --json -- /m/d/h/1"_s] = broken;
        BackupReader reader(services_, folder_, {.name = u"/m/d/h/1"_s});
        bool done = false;
        reader.fill([&done](qint64, bool all) { done = all; });
        runLoop_.advance(2s);
        EXPECT_TRUE(done);
        EXPECT_FALSE(reader.isWhole());
    }
}

} // namespace quillon
