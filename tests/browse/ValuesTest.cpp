#include "Backups.h"
#include "LocalDates.h"
#include "RestorePlan.h"
#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Backup backupOf(Date date, bool complete = true, const QString& computer = u"desk"_s)
{
    return {.name = u"/media/disk/desk/"_s + QString::number(date.time_since_epoch().count()),
            .date = date,
            .disk = u"A"_s,
            .computer = computer,
            .complete = complete};
}

FileEntry fileOf(const QString& path, qint64 size, const QString& content = {})
{
    return {.path = path, .kind = FileKind::File, .size = size, .content = content};
}

} // namespace

TEST(BackupsInATimeline, StandUnderTheDayTheWeekOrTheMonthOfTheClockOnTheWall)
{
    const ScopedEnvironment berlin("TZ", "Europe/Berlin");
    const ScopedEnvironment english("LC_ALL", "en_US.UTF-8");
    const Date now = local(2026, 11, 19, 0, 30); // a Thursday
    const struct {
        Date date;
        int firstDayOfWeek;
        QString heading;
    } rows[] = {
        {local(2026, 11, 19, 0, 10), 1, u"Today"_s},
        {local(2026, 11, 18, 23, 50), 1, u"Yesterday"_s},
        {local(2026, 11, 16, 0, 0), 1, u"This Week"_s},
        {local(2026, 11, 15, 23, 59), 1, u"November 2026"_s},
        {local(2026, 11, 15, 23, 59), 7, u"This Week"_s},
        {local(2026, 11, 14, 12, 0), 7, u"November 2026"_s},
        {local(2025, 11, 19, 0, 10), 1, u"November 2025"_s},
        {local(2026, 11, 20, 0, 10), 1, u"November 2026"_s}, // by a clock that was wrong
    };
    for (const auto& row : rows) {
        const auto groups = timeline({backupOf(row.date)}, now, row.firstDayOfWeek);
        ASSERT_EQ(groups.size(), 1U);
        EXPECT_EQ(groups[0].title, row.heading);
    }
    auto damaged = backupOf(local(2026, 11, 18, 9, 5), false, u"lap"_s);
    damaged.damaged = true;
    const auto groups = timeline({backupOf(local(2026, 11, 19, 0, 10), false), damaged}, now, 1);
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].entries[0].title, u"12:10\u202fAM – desk"_s);
    EXPECT_EQ(groups[0].entries[0].remark, u"Incomplete"_s);
    EXPECT_EQ(groups[1].entries[0].details, u"Nov 18, 2026, 9:05\u202fAM, lap, Damaged"_s);
}

TEST(BackupsAsListed, AreReadWholeOrNotAtAllAndNewestFirst)
{
    const QByteArray head = R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><array>)";
    const QByteArray first = "<dict><key>Name</key><string>/m/d/h/2026-11-20-072258</string><key>Date</key>"
                             "<date>2026-11-20T07:22:58Z</date><key>Complete</key><false/></dict>";
    const QByteArray second = "<dict><key>Name</key><string>/m/d/h/2026-11-21-072258</string><key>Date</key>"
                              "<date>2026-11-21T07:22:58Z</date><key>Damaged</key><true/></dict>";
    const auto backups = readBackups(head + first + second + "</array></plist>");
    ASSERT_TRUE(backups && backups->size() == 2);
    EXPECT_EQ(backups->at(0).name, u"/m/d/h/2026-11-21-072258"_s);
    EXPECT_TRUE(backups->at(0).complete && backups->at(0).damaged);
    EXPECT_FALSE(backups->at(1).complete || backups->at(1).damaged);
    for (const QByteArray& broken : {QByteArray(), head + first, head + "<dict/></array></plist>"})
        EXPECT_FALSE(readBackups(broken)) << broken.toStdString();
}

TEST(TheNextLaterBackup, IsACompleteOneOfTheSameComputer)
{
    const Date day(1'000'000s);
    const std::vector<Backup> backups{backupOf(day + 5h), backupOf(day + 4h), backupOf(day + 3h, true, u"lap"_s),
                                      backupOf(day + 2h, false), backupOf(day + 1h)};
    EXPECT_EQ(nextLater(backups, backups[4]), &backups[1]);
    EXPECT_EQ(nextLater(backups, backups[1]), &backups[0]);
    EXPECT_EQ(nextLater(backups, backups[0]), nullptr);
}

TEST(LinesOfFiles, AreReadAndWhatIsNoneIsTold)
{
    const auto file = readFileLine(R"({"path":"/home/me/\u00e4.txt","type":"file","size":3000000000,)"
                                   R"("modified":"2026-11-20T10:11:12.123Z","content":"7f"})");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->path, u"/home/me/ä.txt"_s);
    EXPECT_EQ(file->size, 3'000'000'000);
    EXPECT_EQ(file->modified, Date(1'795'169'472'123ms));
    const auto link = readFileLine(R"({"path":"/a","type":"link","target":"../b","backup":"/m/d/h/x"})");
    ASSERT_TRUE(link);
    EXPECT_TRUE(link->kind == FileKind::Link && link->target == u"../b"_s && link->backup == u"/m/d/h/x"_s);
    EXPECT_FALSE(link->size || link->modified);
    for (const char* line : {"", "{", "[]", R"({"path":"a","type":"file"})", R"({"path":"/a","type":"door"})",
                             R"({"path":"/a/..","type":"folder"})", R"({"path":"/a/../b","type":"file"})",
                             R"({"path":"/a/./b","type":"file"})", R"({"path":"//a","type":"file"})"})
        EXPECT_FALSE(readFileLine(line)) << line;
}

TEST(FilesAgainstTheLaterBackup, AreTheSameChangedOrGone)
{
    FileEntry folder{.path = u"/h/folder"_s, .kind = FileKind::Folder, .modified = Date(1s)};
    FileEntry touched = folder;
    touched.modified = Date(2s);
    const struct {
        FileEntry then;
        std::optional<FileEntry> later;
        Since since;
    } rows[] = {
        {fileOf(u"/h/a"_s, 1), fileOf(u"/h/a"_s, 1), Since::Same},
        {fileOf(u"/h/a"_s, 1), fileOf(u"/h/a"_s, 2), Since::Changed},
        {fileOf(u"/h/a"_s, 1, u"x"_s), fileOf(u"/h/a"_s, 1, u"y"_s), Since::Changed},
        {{.path = u"/h/a"_s, .modified = Date(1s), .content = u"x"_s},
         FileEntry{.path = u"/h/a"_s, .modified = Date(2s), .content = u"x"_s},
         Since::Same}, // touched only
        {fileOf(u"/h/a"_s, 1), fileOf(u"/h/b"_s, 1), Since::Gone},
        {fileOf(u"/h/a"_s, 1), std::nullopt, Since::Gone},
        {folder, touched, Since::Same},
        {folder, fileOf(u"/h/folder"_s, 1), Since::Changed},
        {{.path = u"/h/l"_s, .kind = FileKind::Link, .target = u"a"_s},
         FileEntry{.path = u"/h/l"_s, .kind = FileKind::Link, .target = u"b"_s},
         Since::Changed},
    };
    for (const auto& row : rows) {
        std::vector<FileEntry> later;
        if (row.later)
            later.push_back(*row.later);
        EXPECT_EQ(changesSince({row.then}, later), std::vector{row.since}) << row.then.path.toStdString();
    }
}

TEST(PathsInABackup, AreNamedSortedAndMatched)
{
    EXPECT_EQ(nameIn(u"/home"_s, u"/home/me"_s), u"me"_s);
    EXPECT_EQ(nameIn({}, u"/home"_s), u"home"_s);
    EXPECT_EQ(nameIn({}, u"/home/me"_s), u"/home/me"_s) << "a root of the backup";
    EXPECT_EQ(folderAround(u"/home/me"_s), u"/home"_s);
    EXPECT_EQ(folderAround(u"/home"_s), QString());
    EXPECT_EQ(namePattern(u" ÄRGER "_s), (NamePattern{u"ärger"_s, false}));
    EXPECT_EQ(namePattern(u"[a]*.TXT"_s), (NamePattern{u"[[]a]*.txt"_s, true}));
}

TEST(FilesInAFolder, StandBehindTheFoldersByNameSizeOrDate)
{
    using By = FileOrder::By;
    const auto at = [](FileEntry entry, int seconds) {
        entry.modified = Date(std::chrono::seconds(seconds));
        return entry;
    };
    const std::vector<FileEntry> files{
        at(fileOf(u"/h/c"_s, 1), 2), at(fileOf(u"/h/b"_s, 7), 2), at(fileOf(u"/h/A"_s, 7), 3),
        at({.path = u"/h/zoo"_s, .kind = FileKind::Folder}, 1), at({.path = u"/h/yak"_s, .kind = FileKind::Folder}, 2)};
    const struct {
        FileOrder order;
        std::vector<std::size_t> places;
    } rows[] = {
        {{By::Name, false}, {4, 3, 2, 1, 0}},     {{By::Name, true}, {3, 4, 0, 1, 2}},
        {{By::Size, false}, {4, 3, 0, 2, 1}},     {{By::Size, true}, {4, 3, 2, 1, 0}},
        {{By::Modified, false}, {3, 4, 1, 0, 2}}, {{By::Modified, true}, {4, 3, 2, 1, 0}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(sortedPlaces(files, row.order), row.places);
}

namespace {

RestoreEvent told(RestoreEvent::Kind kind, const QString& source)
{
    return {.kind = kind, .source = source, .path = u"/target"_s + source};
}

} // namespace

TEST(ARestore, AsksAboutWhatIsInTheWayAndNamesWhatDidNotComeBack)
{
    using Kind = RestoreEvent::Kind;
    const QStringList sources{u"/a"_s, u"/b"_s, u"/c"_s, u"/d"_s, u"/e"_s, u"/f"_s};
    RestorePlan plan(sources, u"/target"_s);
    EXPECT_EQ(plan.nextCall(),
              QStringList({u"restore"_s, u"--json"_s, u"--skip"_s}) + sources + QStringList(u"/target"_s));
    EXPECT_FALSE(plan.question()) << "while it runs";
    plan.take(told(Kind::Restored, u"/a"_s));
    for (const QString& taken : {u"/b"_s, u"/c"_s, u"/d"_s, u"/e"_s})
        plan.take(told(Kind::Skipped, taken));
    plan.endCall(u"The disk was pulled out."_s);
    EXPECT_EQ(plan.nextCall(), std::nullopt) << "ahead of the answers";
    ASSERT_TRUE(plan.question());
    EXPECT_EQ(plan.question()->path, u"/target/b"_s);
    plan.answer(ConflictRule::Replace, false);
    EXPECT_TRUE(plan.isMoreInTheWay());
    plan.answer(ConflictRule::Skip, false);
    plan.answer(ConflictRule::KeepBoth, true);
    EXPECT_EQ(plan.nextCall(),
              QStringList({u"restore"_s, u"--json"_s, u"--keep-both"_s, u"/d"_s, u"/e"_s, u"/target"_s}));
    plan.take(*readRestoreEvent(
        R"({"event":"restored","source":"/d","path":"/target/d","remark":"Its owner could not be set."})"));
    plan.take(*readRestoreEvent(R"({"event":"failed","source":"/e","cause":"NoSpace","reason":"Its\nwords."})"));
    plan.endCall({});
    EXPECT_EQ(plan.nextCall(), QStringList({u"restore"_s, u"--json"_s, u"--replace"_s, u"/b"_s, u"/target"_s}));
    plan.take(told(Kind::Restored, u"/b"_s));
    EXPECT_FALSE(plan.nextCall());
    plan.endCall({});
    EXPECT_TRUE(plan.isDone());
    EXPECT_EQ(plan.restored(), 3);
    EXPECT_EQ(plan.skipped(), 1);
    EXPECT_EQ(plan.lost(), 2);
    EXPECT_EQ(plan.losses(),
              (std::vector<RestorePlan::Loss>{{u"/f"_s, u"The disk was pulled out."_s},
                                              {u"/target/d"_s, u"Its owner could not be set."_s},
                                              {u"/e"_s, u"There is no room left. (tmutil: Its words.)"_s}}));
}

TEST(ARestore, ThatIsStoppedMakesNoFurtherCall)
{
    RestorePlan plan({u"/a"_s, u"/b"_s}, {});
    EXPECT_EQ(plan.nextCall(),
              QStringList({u"restore"_s, u"--json"_s, u"--skip"_s, u"--in-place"_s, u"/a"_s, u"/b"_s}));
    plan.take(told(RestoreEvent::Kind::Skipped, u"/a"_s));
    plan.stop();
    plan.endCall(u"Stopped."_s);
    EXPECT_TRUE(plan.isDone() && plan.isStopped() && !plan.question() && !plan.nextCall());
    EXPECT_TRUE(plan.losses().empty());
}

TEST(LinesOfARestore, AreReadAndWhatIsNoneIsTold)
{
    const auto progress =
        readRestoreEvent(R"({"event":"progress","files":3,"totalFiles":10,"bytes":123,"totalBytes":4560000000})");
    ASSERT_TRUE(progress);
    EXPECT_EQ(progressText(*progress), u"3 of 10 files, 123 bytes of 4.6 GB"_s);
    EXPECT_EQ(readRestoreEvent(R"({"event":"failed","source":"/a","reason":"x"})")->kind, RestoreEvent::Kind::Failed);
    EXPECT_FALSE(readRestoreEvent("tmutil: words") || readRestoreEvent(R"({"event":"party"})"));
}

} // namespace quillon
