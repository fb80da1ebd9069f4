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

class MenuBarTest : public testing::Test {
protected:
    MenuBarTest()
    {
        menu_.addAction(u"Back up now"_s);
        bar_.setMenu(&menu_);
        bar_.setContent(content(u"Next:\n5h 12m"_s));
    }

    MenuBarButton& button() { return *bar_.findChild<MenuBarButton*>(); }
    QMenu menu_;
    MenuBarWindow bar_;
};

TEST_F(MenuBarTest, LiesAlongTheTopOfTheScreenWithTheItemAtItsRightEnd)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(bar_.isVisible());
    EXPECT_EQ(bar_.geometry(), QRect(screen.topLeft(), QSize(screen.width(), bar_.height())));
    EXPECT_LE(bar_.height(), 32);
    QCoreApplication::processEvents();
    EXPECT_EQ(button().geometry().right(), bar_.width() - 1);
}

TEST_F(MenuBarTest, IsAsWideAsItsTitleButNotWiderThanTheScreenAndKeepsItsHeight)
{
    const int height = bar_.height();
    const auto widthOf = [this](const QString& title) {
        bar_.setContent(content(title));
        QCoreApplication::processEvents();
        return button().width();
    };
    EXPECT_EQ(widthOf(QString()), button().minimumSizeHint().width());
    EXPECT_GT(widthOf(u"Next:\n5h 12m"_s), widthOf(QString()));
    EXPECT_GT(widthOf(u"Next:\n5h 12m 30s"_s), widthOf(u"Next:\n5h 12m"_s));
    EXPECT_EQ(widthOf(QString(2000, u'W') + u"\n5h"_s), bar_.width());
    EXPECT_EQ(bar_.width(), QGuiApplication::primaryScreen()->geometry().width());
    EXPECT_EQ(bar_.height(), height) << "the bar keeps its place on the screen while titles come and go";
    bar_.setContent(content(u"Xxx\n45 gj"_s, 24));
    EXPECT_GE(button().sizeHint().height(), 2 * 24) << "both lines have room";
}

TEST_F(MenuBarTest, IsReadOutAsItsTitleOrElseByTheProgramsName)
{
    QApplication::setApplicationDisplayName(u"Quillon"_s);
    const auto* seen = QAccessible::queryAccessibleInterface(&button());
    EXPECT_EQ(seen->role(), QAccessible::Button);
    EXPECT_EQ(seen->text(QAccessible::Name), u"Next:\n5h 12m"_s);
    StatusItemContent failure = content(QString());
    failure.image->description = u"It failed."_s;
    bar_.setContent(failure);
    EXPECT_EQ(seen->text(QAccessible::Name), u"Quillon"_s);
    EXPECT_EQ(seen->text(QAccessible::Description), u"It failed."_s);
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

TEST_F(MenuBarTest, OutlivesItsMenuAndIsClosedByTheProgramsEndOnly)
{
    {
        QMenu other;
        bar_.setMenu(&other);
    }
    QTest::mouseClick(&button(), Qt::LeftButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
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
