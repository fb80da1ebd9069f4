#include "EventLoop.h"
#include "Popover.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class PopoverTest : public testing::Test {
protected:
    PopoverTest()
    {
        window_.resize(400, 300);
        button_->setGeometry(150, 100, 80, 30);
        window_.move(200, 150);
        window_.show();
        fill(popover_);
    }
    ~PopoverTest() override { EXPECT_FALSE(QApplication::activePopupWidget()); }

    static void fill(Popover& popover)
    {
        auto content = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(content.get());
        layout->addWidget(new QLineEdit(content.get()));
        auto* box = new QComboBox(content.get());
        box->addItems({u"1"_s, u"2"_s});
        layout->addWidget(box);
        popover.setContentView(content.release());
    }
    void show()
    {
        window_.activateWindow(); // there is no window manager here to do it
        popover_.setBehavior(PopoverBehavior::Transient);
        popover_.showRelativeTo({.view = button_}, RectEdge::MinY);
        leaveApplication(); // as with a menu that goes before the popover gets the keyboard
        ASSERT_TRUE(becomesActive(popover_));
    }
    static bool becomesActive(const Popover& popover)
    {
        return runUntil([&popover] { return QApplication::activeWindow() == &popover; });
    }
    static QRect onScreen(const QWidget* widget) { return {widget->mapToGlobal(QPoint()), widget->size()}; }
    QRect content() const { return onScreen(popover_.contentView()); }
    void clickOutside() { QTest::mouseClick(&window_, Qt::LeftButton, {}, QPoint(5, 5)); }
    static void leaveApplication() { Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive); }

    QWidget window_;
    QPushButton* button_ = new QPushButton(&window_);
    Popover popover_;
};

TEST_F(PopoverTest, LiesBesideItsAnchorAndTakesTheKeyboard)
{
    show();
    const QRect anchor = onScreen(button_);
    EXPECT_GT(content().top(), anchor.bottom());
    EXPECT_NEAR(content().center().x(), anchor.center().x(), 1);
    EXPECT_TRUE(popover_.contentView()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(PopoverTest, FollowsItsContentAndItsAnchor)
{
    show();
    const QRect before = content();
    popover_.findChild<QLineEdit*>()->setMinimumWidth(250);
    ASSERT_TRUE(runUntil([this] { return content().width() >= 250; }));
    EXPECT_EQ(content().top(), before.top());
    EXPECT_NEAR(content().center().x(), onScreen(button_).center().x(), 1);
    const QRect large = content();
    window_.move(window_.pos() + QPoint(30, 20));
    EXPECT_TRUE(runUntil([&] { return content() == large.translated(30, 20); }));
}

TEST_F(PopoverTest, TransientOneClosesWhenTheUserTurnsToSomethingElse)
{
    const std::function<void()> turns[] = {
        [this] { clickOutside(); }, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); },
        [] { leaveApplication(); },
        [this] { QTest::mouseClick(&popover_, Qt::LeftButton, {}, QPoint(1, 1)); }}; // the shadow is outside
    for (const auto& turnAway : turns) {
        show();
        turnAway();
        EXPECT_FALSE(popover_.isShown()) << &turnAway - turns;
    }
}

TEST_F(PopoverTest, TransientOneStaysWhileTheUserIsInsideOfIt)
{
    show();
    QTest::mouseClick(popover_.findChild<QLineEdit*>(), Qt::LeftButton);
    QTest::mouseClick(popover_.contentView(), Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_TRUE(popover_.isShown());

    auto* box = popover_.findChild<QComboBox*>();
    box->showPopup();
    leaveApplication();
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton);
    EXPECT_TRUE(popover_.isShown()) << "a combo box's list";
    box->hidePopup();
    QMenu menu(popover_.contentView());
    menu.popup(QPoint());
    leaveApplication();
    EXPECT_TRUE(popover_.isShown()) << "a menu of its own";
    menu.close();
}

TEST_F(PopoverTest, TransientOneStaysAsLongAsItsChildrenDoWhichHaveTheKeyboardBeforeIt)
{
    show();
    Popover child;
    fill(child);
    child.showRelativeTo({.view = popover_.findChild<QComboBox*>()}, RectEdge::MaxX);
    ASSERT_TRUE(becomesActive(child));
    QTest::mouseClick(child.contentView(), Qt::LeftButton);
    clickOutside();
    leaveApplication();
    EXPECT_TRUE(popover_.isShown());
    popover_.activateWindow();
    EXPECT_TRUE(becomesActive(child)) << "as when the user clicks on it";
    child.close();
    EXPECT_TRUE(becomesActive(popover_));
    clickOutside();
    EXPECT_FALSE(popover_.isShown());
}

} // namespace
} // namespace quillon
