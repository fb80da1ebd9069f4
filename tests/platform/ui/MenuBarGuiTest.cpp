#include "ShownStatusItem_linux.h"

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

StatusItemContent content(const QString& text)
{
    return {.title = {.text = text, .pointSize = 9.5, .paragraphSpacing = -5.0, .baselineOffset = -5.0},
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

TEST_F(MenuBarTest, LiesAlongTheTopOfTheScreenWithTheItemAtItsRightEndAsWideAsItsTitle)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const int height = bar_.height();
    EXPECT_EQ(bar_.geometry(), QRect(screen.topLeft(), QSize(screen.width(), height)));
    const auto widthOf = [this](const QString& title) {
        bar_.setContent(content(title));
        QCoreApplication::processEvents();
        return button().width();
    };
    EXPECT_GT(widthOf(u"Next:\n5h 12m"_s), widthOf(QString()));
    EXPECT_EQ(widthOf(QString(2000, u'W') + u"\n5h"_s), bar_.width());
    EXPECT_EQ(button().geometry().right(), bar_.width() - 1);
    EXPECT_EQ(bar_.height(), height) << "the bar keeps its place on the screen while titles come and go";
}

TEST_F(MenuBarTest, IsReadOutAsItsTitleOrElseByTheProgramsName)
{
    QApplication::setApplicationDisplayName(u"Quillon"_s);
    const auto* seen = QAccessible::queryAccessibleInterface(&button());
    EXPECT_EQ(seen->text(QAccessible::Name), u"Next:\n5h 12m"_s);
    StatusItemContent failure = content(QString());
    failure.image->description = u"It failed."_s;
    bar_.setContent(failure);
    EXPECT_EQ(seen->text(QAccessible::Name), u"Quillon"_s);
    EXPECT_EQ(seen->text(QAccessible::Description), u"It failed."_s);
    EXPECT_EQ(button().toolTip(), u"It failed."_s);
}

TEST_F(MenuBarTest, OpensItsMenuBelowItByKeyboard)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar_));
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Down}) {
        QTest::keyClick(&button(), key);
        EXPECT_TRUE(menu_.isVisible() && menu_.y() >= bar_.geometry().bottom()) << key;
        QTest::keyClick(&menu_, Qt::Key_Escape);
        EXPECT_FALSE(menu_.isVisible()) << key;
    }
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
