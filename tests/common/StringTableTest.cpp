#include "LocalizedString.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class StringTableTest : public testing::Test {
protected:
    void SetUp() override { installStringTable(); }
    void TearDown() override { qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>()); }
};

TEST_F(StringTableTest, AMissingKeyShowsAsTheKey)
{
    EXPECT_EQ(localizedString("todayTitle"), u"Today"_s);
    EXPECT_EQ(localizedString("noSuchKeyTitle"), u"noSuchKeyTitle"_s);
}

TEST_F(StringTableTest, FormatsTakeTheirArgumentsInOrder)
{
    EXPECT_EQ(localizedString("quitApplicationTitle").arg(u"Quillon"_s), u"Quit Quillon"_s);
    const QString message =
        localizedString("timeMachinePermissionRequiredAlertMessage").arg(u"<button>"_s, u"<application>"_s);
    EXPECT_TRUE(message.contains(u"click “<button>”"_s));
    EXPECT_TRUE(message.contains(u"allow <application> to"_s));
}

TEST_F(StringTableTest, EveryKeyThatTheCodeLooksUpHasAText)
{
    const QRegularExpression lookUp(u"localizedString\\(\"(\\w+)\"\\)"_s);
    QDirIterator sources(QString::fromUtf8(QUILLON_SOURCES), {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    int found = 0;
    while (sources.hasNext()) {
        QFile source(sources.next());
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        const auto text = QString::fromUtf8(source.readAll());
        for (const auto& match : lookUp.globalMatch(text)) {
            const QString key = match.captured(1);
            EXPECT_NE(localizedString(key.toLatin1().constData()), key) << source.fileName().toStdString();
            ++found;
        }
    }
    EXPECT_GT(found, 0);
}

} // namespace
} // namespace quillon
