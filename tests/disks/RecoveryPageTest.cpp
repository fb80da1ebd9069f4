#include "RecoveryKeyDialog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

static RecoveryPage pageOf(const QString& path)
{
    return {.disk = u"Disk"_s, .path = path, .key = u"8K2VT-444AB"_s, .made = Date()};
}

TEST(RecoveryPage, HoldsTheKeyAndCommandsThatAShellTakes)
{
    for (const auto& [path, adopt] : {std::pair{u"/media/you/Disk-1"_s, u"tmutil adopt /media/you/Disk-1 "_s},
                                      std::pair{u"/it's $HOME"_s, u"tmutil adopt '/it'\\''s $HOME' "_s}}) {
        const QString text = pageOf(path).text();
        EXPECT_TRUE(text.contains(adopt)) << text.toStdString();
        EXPECT_TRUE(text.contains(u"\n    8K2VT-444AB\n"_s));
        EXPECT_TRUE(text.contains(u"\n5. tmutil startbackup -b"_s)) << text.toStdString();
    }
}

TEST(RecoveryPage, OfAPlaceOnAServerSaysWhereItIs)
{
    RecoveryPage page = pageOf(u"s3:https://s3.example.com/b"_s);
    page.isPlace = true;
    EXPECT_TRUE(page.text().contains(u"enter s3:https://s3.example.com/b as"_s)) << page.text().toStdString();
    EXPECT_FALSE(page.text().contains(u"tmutil adopt"_s)) << "it would have to hold what lets one in";
}

TEST(RecoveryPage, IsSavedWholeAndForTheUserAlone)
{
    const QTemporaryDir folder;
    const auto page = pageOf(folder.path());
    const QString file = folder.filePath(u"page.txt"_s);
    QFile open(file);
    ASSERT_TRUE(open.open(QIODevice::WriteOnly) && open.setPermissions(QFile::WriteOwner | QFile::ReadOther));
    for (const bool pdf : {false, true}) {
        EXPECT_EQ(page.save(file, pdf), QString());
        EXPECT_FALSE(QFileInfo(file).permissions() & (QFile::ReadGroup | QFile::ReadOther)) << pdf;
        QFile saved(file);
        ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
        const QByteArray contents = saved.readAll();
        EXPECT_TRUE(pdf ? contents.startsWith("%PDF") && contents.trimmed().endsWith("%%EOF")
                        : contents == page.text().toUtf8());
    }
    EXPECT_NE(page.save(folder.filePath(u"missing/page.txt"_s), false), QString());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"page.txt"_s));
    EXPECT_TRUE(page.wouldLieOnDisk(file));
    EXPECT_FALSE(page.wouldLieOnDisk(u"/proc/page.txt"_s));
}

} // namespace quillon
