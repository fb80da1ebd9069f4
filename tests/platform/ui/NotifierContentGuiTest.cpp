#include "NotifierStatusItem_linux.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(NotifierContent, LabelsStandInOneLine)
{
    for (const auto& [title, label] : {std::pair{u"Next:\n5h 12m"_s, u"Next: 5h 12m"_s},
                                       {u"45.3%\n2m"_s, u"45.3% – 2m"_s},
                                       {u"Paused"_s, u"Paused"_s},
                                       {QString(), QString()}}) {
        const StatusItemContent content{.title = {.text = title}, .image = {}};
        EXPECT_EQ(notifierContent(content, QDir()).label, label);
        EXPECT_EQ(notifierContent(content, QDir()).toolTip, title);
    }
}

TEST(NotifierContent, NamesAnIconThatIsInstalledAndHasNeitherColourNorProgress)
{
    const QString before = QGuiApplication::desktopFileName();
    QGuiApplication::setDesktopFileName(u"org.example.Program"_s);
    const QTemporaryDir folder;
    const QDir share(folder.path());
    ASSERT_TRUE(share.mkpath(u"icons/hicolor/symbolic/apps"_s));
    QFile icon(share.filePath(u"icons/hicolor/symbolic/apps/org.example.Program.clock-symbolic.svg"_s));
    ASSERT_TRUE(icon.open(QIODevice::WriteOnly));

    const auto name = [&share](const SymbolImage& image) {
        return notifierContent({.title = {}, .image = image}, share).iconName;
    };
    SymbolImage image{.name = u"clock"_s, .paletteColor = {}};
    EXPECT_EQ(name(image), u"org.example.Program.clock-symbolic"_s);
    image.percent = 5;
    EXPECT_EQ(name(image), QString());
    EXPECT_EQ(name({.name = u"clock"_s, .paletteColor = SymbolColor::SystemOrange}), QString());
    EXPECT_EQ(name({.name = u"other"_s, .paletteColor = {}}), QString());
    QGuiApplication::setDesktopFileName(before);
}

} // namespace
} // namespace quillon
