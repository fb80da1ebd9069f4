#include "Listing.h"
#include "Paths.h"

#include <gtest/gtest.h>
#include <tuple>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(ListedFile, IsReadFromALineOfRestic)
{
    // restic 0.14.0, as recorded
    const auto folder = ListedFile::fromJson(
        R"({"name":"tmp","type":"dir","path":"/tmp","uid":1000,"gid":100,"mode":2148532735,"permissions":"dtrwxrwxrwx",)"
        R"("mtime":"2026-11-22T13:04:54.646232479+02:00","struct_type":"node"})");
    ASSERT_TRUE(folder);
    EXPECT_EQ(std::tuple(folder->path, folder->kind, folder->mode, folder->owner, folder->group),
              std::tuple(u"/tmp"_s, ListedFile::Kind::Folder, mode_t{01777}, uid_t{1000}, gid_t{100}));
    EXPECT_EQ(folder->modified.toString(Qt::ISODateWithMs), u"2026-11-22T11:04:54.646Z"_s);
    EXPECT_FALSE(ListedFile::fromJson(R"({"time":"2026-11-22T11:04:54Z","paths":["/a"],"struct_type":"snapshot"})"));
    EXPECT_FALSE(ListedFile::fromJson("Fatal: no JSON"));
    EXPECT_EQ(toldPath(decodePath("/a/\xFC\xF0\x9F\x97\xBF\xE2\x82")), u"/a/\uFFFD\U0001F5FF\uFFFD\uFFFD"_s);
}

TEST(ListedFile, IsFoundInPiecesOfAnyLength)
{
    const QByteArray whole =
        R"([{"matches":[{"path":"/a/q\"u}o{t,e\\","type":"file","size":2},{"path":"/l","type":"symlink",)"
        R"("linktarget":"[}"}],"hits":2,"snapshot":"61d2"},{"matches":[{"path":"/b","type":"fifo"}],"hits":1,)"
        R"("snapshot":"e200"}])"
        "\n";
    const QStringList told{u"/a/q\"u}o{t,e\\"_s, u"/l->[}"_s, u"61d2"_s, u"/b"_s, u"e200"_s};
    for (const qsizetype length : {qsizetype{1}, qsizetype{7}, whole.size()}) {
        QStringList found;
        FindOutput output(
            [&](const ListedFile& file) {
                found << file.path + (file.target.isEmpty() ? QString() : u"->"_s + file.target);
            },
            [&](const QString& snapshot) { found << snapshot; });
        for (qsizetype at = 0; at < whole.size(); at += length)
            output.read(whole.mid(at, length));
        EXPECT_EQ(found, told) << length;
        EXPECT_TRUE(output.isWhole());
    }
    const char* const words = "Unable to load tree 7d1a\n ... which belongs to snapshot 61d2.\n";
    for (const QByteArray& text :
         {QByteArray(words), R"([{"matches":[{"path":"/a","type":"dir"})" + QByteArray(words)}) {
        FindOutput output([](const ListedFile&) {}, [](const QString&) {});
        output.read(text);
        EXPECT_FALSE(output.isWhole()) << text.toStdString();
    }
}

TEST(NamePattern, MatchesWholeNamesWithWildcardsAndPartsWithout)
{
    // The pattern, what restic is asked for, what matches, and what does not.
    const std::tuple<QString, QString, QStringList, QStringList> cases[] = {
        {u"note"_s, u"*note*"_s, {u"Notes.txt"_s, u"my note"_s}, {u"not"_s}},
        {u"*.TXT"_s, u"*.TXT"_s, {u"a.txt"_s, u".txt"_s, u"two\nlines.txt"_s}, {u"a.txt~"_s, u"atxt"_s}},
        {u"?.c"_s, u"?.c"_s, {u"a.c"_s, u"ü.C"_s}, {u"ab.c"_s, u".c"_s}},
        {u"Übung"_s, u"*bung*"_s, {u"übungen"_s, u"ÜBUNG"_s}, {u"Ubung"_s}},
        {u"a[1]\\"_s, u"*a*1]*"_s, {u"a[1]\\"_s}, {u"a1"_s}},
    };
    for (const auto& [text, restic, names, others] : cases) {
        const NamePattern pattern(text);
        EXPECT_EQ(pattern.forRestic(), restic);
        for (const QString& name : names)
            EXPECT_TRUE(pattern.matches(name)) << text.toStdString() << ' ' << name.toStdString();
        for (const QString& name : others)
            EXPECT_FALSE(pattern.matches(name)) << text.toStdString() << ' ' << name.toStdString();
    }
}

TEST(Versions, AreNamedOnceWhileTheyDoNotChange)
{
    const QDateTime first = QDateTime::fromString(u"2026-11-20T10:00:00Z"_s, Qt::ISODate);
    const auto version = [&first](int day, qint64 size, int changed, const QString& target = {}) {
        ListedFile file;
        file.size = size;
        file.modified = first.addSecs(changed);
        file.target = target;
        return Version{first.addDays(day), QString::number(day), file};
    };
    QString named;
    // From the last on: a longer one, twice the same, a touched one, another link, and one that was there before.
    for (const Version& one : distinctVersions({version(2, 5, 0), version(0, 5, 0), version(1, 6, 0), version(5, 5, 9),
                                                version(4, 5, 9), version(6, 5, 9, u"x"_s), version(3, 5, 0)}))
        named += one.backup;
    EXPECT_EQ(named, u"65310"_s);
}

} // namespace quillon
