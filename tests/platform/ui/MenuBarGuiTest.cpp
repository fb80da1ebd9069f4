#include "MenuBarButton_linux.h"
#include "MenuBarWindow_linux.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

StatusItemContent content(const QString& text, double pointSize = 9.5)
{
    return {.title = {.text = text, .pointSize = pointSize, .paragraphSpacing = -5.0, .baselineOffset = -5.0},
            .image = SymbolImage{.name = u"clock.arrow.circlepath"_s, .paletteColor = {}}};
}

/// Rows or columns of the picture in which something is drawn on the ground, as runs of (first, last).
QList<std::pair<int, int>> runs(const QImage& image, Qt::Orientation along)
{
    constexpr int faintest = 200;
    const bool rows = along == Qt::Vertical;
    QList<std::pair<int, int>> found;
    for (int i = 0; i < (rows ? image.height() : image.width()); ++i) {
        bool inked = false;
        for (int j = 0; j < (rows ? image.width() : image.height()) && !inked; ++j)
            inked = (rows ? image.pixelColor(j, i) : image.pixelColor(i, j)).lightness() < faintest;
        if (inked && !found.isEmpty() && found.last().second == i - 1)
            found.last().second = i;
        else if (inked)
            found.append({i, i});
    }
    return found;
}

class MenuBarTest : public testing::Test {
protected:
    MenuBarTest()
    {
        QPalette palette(Qt::white);
        palette.setColor(QPalette::WindowText, Qt::black);
        bar_.setPalette(palette);
        menu_.addAction(u"Back up now"_s);
        bar_.setMenu(&menu_);
        bar_.setContent(content(u"Next:\n5h 12m"_s));
    }

    MenuBarButton& button() { return *bar_.findChild<MenuBarButton*>(); }
    QImage picture()
    {
        QCoreApplication::processEvents();
        button().clearFocus(); // which activation gives it
        return button().grab().toImage();
    }

    QMenu menu_;
    MenuBarWindow bar_;
};

TEST_F(MenuBarTest, LiesAlongTheTopOfTheScreenWithTheItemAtItsRightEnd)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(bar_.isVisible());
    EXPECT_EQ(bar_.geometry().topLeft(), screen.topLeft());
    EXPECT_EQ(bar_.width(), screen.width());
    EXPECT_LE(bar_.height(), 32);
    QCoreApplication::processEvents();
    EXPECT_EQ(button().geometry().right(), bar_.width() - 1);
}

TEST_F(MenuBarTest, DrawsTwoSeparateLinesInsideTheGroundThatMarksItAndAlignedToTheRight)
{
    constexpr int margin = 8;
    constexpr int edgeOfTheGround = 1;
    constexpr int bearing = 2;
    for (const double pointSize : {9.5, 14.0, 24.0}) {
        StatusItemContent text = content(u"Xxx\n45 gj"_s, pointSize);
        text.image.reset();
        bar_.setContent(text);
        const QImage item = picture();
        const auto lines = runs(item, Qt::Vertical);
        ASSERT_EQ(lines.size(), 2) << pointSize;
        EXPECT_GT(lines.first().first, edgeOfTheGround) << pointSize;
        EXPECT_LT(lines.last().second, item.height() - 1 - edgeOfTheGround) << pointSize;
        for (const auto& [first, last] : lines) {
            const auto columns = runs(item.copy(0, first, item.width(), last - first + 1), Qt::Horizontal);
            EXPECT_NEAR(item.width() - 1 - columns.last().second, margin, bearing) << pointSize;
        }
    }
}

TEST_F(MenuBarTest, ShortensATitleThatIsLongerThanTheScreenAndKeepsTheImage)
{
    bar_.setContent(content(QString(2000, u'W') + u"\n5h"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(button().width(), bar_.width());
    EXPECT_EQ(bar_.width(), QGuiApplication::primaryScreen()->geometry().width());
    EXPECT_GE(runs(picture(), Qt::Horizontal).last().second, button().width() - 12);
}

TEST_F(MenuBarTest, IsAsNarrowAsItsImageWithoutATitle)
{
    const int height = bar_.height();
    bar_.setContent(content(QString()));
    QCoreApplication::processEvents();
    EXPECT_EQ(button().width(), button().minimumSizeHint().width());
    EXPECT_EQ(bar_.height(), height) << "the bar keeps its place on the screen while titles come and go";
}

TEST_F(MenuBarTest, IsReadOutAsItsTitleOrElseByTheProgramsName)
{
    QApplication::setApplicationDisplayName(u"Quillon"_s);
    const auto name = [this] { return QAccessible::queryAccessibleInterface(&button())->text(QAccessible::Name); };
    EXPECT_EQ(name(), u"Next:\n5h 12m"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button())->role(), QAccessible::Button);
    StatusItemContent failure = content(QString());
    failure.image->description = u"It failed."_s;
    bar_.setContent(failure);
    EXPECT_EQ(name(), u"Quillon"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button())->text(QAccessible::Description), u"It failed."_s);
    EXPECT_EQ(button().toolTip(), u"It failed."_s);
}

TEST_F(MenuBarTest, OpensItsMenuOnAPressAndByKeyboard)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar_));
    QTest::mousePress(&button(), Qt::LeftButton);
    EXPECT_TRUE(menu_.isVisible());
    EXPECT_GE(menu_.y(), bar_.geometry().bottom());
    menu_.hide();
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Down}) {
        QTest::keyClick(&button(), key);
        EXPECT_TRUE(menu_.isVisible()) << key;
        QTest::keyClick(&menu_, Qt::Key_Escape);
        EXPECT_FALSE(menu_.isVisible()) << key;
        EXPECT_FALSE(button().isDown());
    }
}

TEST_F(MenuBarTest, OutlivesItsMenu)
{
    {
        QMenu other;
        bar_.setMenu(&other);
    }
    QTest::mouseClick(&button(), Qt::LeftButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MenuBarTest, IsClosedByTheProgramsEndOnly)
{
    QCloseEvent byUser;
    QSpontaneKeyEvent::setSpontaneous(&byUser);
    QCoreApplication::instance()->notify(&bar_, &byUser); // sendEvent() would make it the program's again
    EXPECT_FALSE(byUser.isAccepted());
    QCloseEvent byProgram;
    QCoreApplication::sendEvent(&bar_, &byProgram);
    EXPECT_TRUE(byProgram.isAccepted());
}

} // namespace
} // namespace quillon
