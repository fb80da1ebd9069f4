#include "Placement.h"

#include "ConfigurationFixture.h"

#include <tuple>

namespace quillon {

TEST(FreeName, KeepsTheEndingOfAFileAndIsNotTaken)
{
    const QString long250 = QString(250, u'x');
    const std::tuple<QString, bool, QStringList, QString> cases[] = {
        {u"a.txt"_s, true, {}, u"a (restored D).txt"_s},
        {u"a.b"_s, false, {}, u"a.b (restored D)"_s},
        {u".profile"_s, true, {}, u".profile (restored D)"_s},
        {u"Dr. No and others"_s, true, {}, u"Dr. No and others (restored D)"_s},
        {u"a"_s, true, {u"a (restored D)"_s, u"a (restored D 2)"_s}, u"a (restored D 3)"_s},
        {long250 + u".txt"_s, true, {}, QString(238, u'x') + u" (restored D).txt"_s},
        {u"\U0001F5FF"_s.repeated(63), true, {}, u"\U0001F5FF"_s.repeated(60) + u" (restored D)"_s},
    };
    for (const auto& [name, isFile, taken, expected] : cases)
        EXPECT_EQ(freeName(name, isFile, u"D"_s, [&taken = taken](const QString& one) { return taken.contains(one); }),
                  expected);
}

class PlacementTest : public ConfigurationFixture {
protected:
    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }
};

TEST_F(PlacementTest, WhatLiesInAFolderAndIsNoPartOfItIsNotReplacedWithIt)
{
    const Destination disk{u"id"_s, {}, folder(u"home/disk"_s)};
    const MountTable mounts("36 35 98:0 / " + QFile::encodeName(folder(u"home/mount"_s)) + " rw - ext4 /dev/x rw\n");
    const Folders folders{root_.path(), folder(u"home/etc/own"_s), folder(u"state"_s), folder(u"cache"_s)};
    QFile::link(path(u"home"_s), path(u"link"_s));
    const std::pair<QString, QString> cases[] = {
        {u"home"_s, u"/home/disk\""_s},
        {u"home/disk"_s, u"/home/disk\""_s},
        {u"link/etc"_s, u"/etc/own\""_s},
        {u"home/mount"_s, u"/home/mount\""_s},
        {u"cache"_s, {}},
        {u"home/disk/x"_s, {}},
        {u"home/dis"_s, {}},
    };
    for (const auto& [name, words] : cases) {
        const QString refusal = replacementRefusal(path(name), mounts, {disk}, folders);
        EXPECT_EQ(refusal.isEmpty(), words.isEmpty()) << name.toStdString();
        EXPECT_TRUE(refusal.contains(words)) << refusal.toStdString();
    }
}

TEST_F(PlacementTest, AReplacementTakesPlaceOrNothingHasChanged)
{
    for (const auto replace : {exchange, exchangeInTurns}) {
        const QString present = file(u"place/name"_s, "present");
        const QString restored = file(u"work/name"_s, "restored");
        EXPECT_THROW(replace(path(u"work/none"_s), present), Failure);
        EXPECT_EQ(contents(present), "present");
        EXPECT_FALSE(moveInto(restored, present));
        replace(restored, present);
        EXPECT_EQ(contents(present), "restored");
        EXPECT_EQ(contents(restored), "present") << "to be removed by whoever has asked";
        EXPECT_EQ(QDir(path(u"place"_s)).entryList(QDir::Files | QDir::Hidden), QStringList(u"name"_s));
    }
}

TEST_F(PlacementTest, AFolderMadeForARestoreThatFailsIsRemoved)
{
    const QString deep = folder(u"there"_s) + "/a/b"_L1;
    ListedFile known;
    known.path = deep;
    known.mode = 0750;
    known.owner = geteuid();
    known.group = getegid();
    for (const bool succeeds : {false, true}) {
        MissingFolders missing(deep);
        EXPECT_EQ(missing.paths(), (QStringList{path(u"there/a"_s), path(u"there/a/b"_s)}));
        missing.make();
        EXPECT_EQ(mode(deep), 0700U);
        if (succeeds)
            missing.keep({known});
    }
    EXPECT_EQ(mode(deep), 0750U);
}

TEST_F(PlacementTest, ABytesPlaceInANameIsFoundAndNoOtherCharacters)
{
    for (const char* name : {"a\xFC", "a\xFD", "au", "b\xFC"})
        mkdir((encodePath(folder(u"tree"_s)) + '/' + name).constData(), 0700);
    const QString tree = path(u"tree"_s);
    EXPECT_EQ(entriesToldAs(tree, u"/b\uFFFD"_s), QStringList(decodePath(encodePath(tree) + "/b\xFC")));
    EXPECT_EQ(entriesToldAs(tree, u"/a\uFFFD"_s).size(), 2);
    EXPECT_EQ(entriesToldAs(tree, decodePath("/a\xFC")).size(), 1);
    EXPECT_TRUE(entriesToldAs(tree, decodePath("/b\xFD")).isEmpty()) << "it was not asked for";
}

} // namespace quillon
