#include "Popover.h"
#include "Waiting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>

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
        if (!popover_.isShown())
            window_.activateWindow(); // there is no window manager here to do it
        popover_.setBehavior(PopoverBehavior::Transient);
        popover_.showRelativeTo({.view = button_}, RectEdge::MinY);
        ASSERT_TRUE(becomesActive(popover_));
    }
    static bool becomesActive(const Popover& popover)
    {
        return eventually([&popover] { return QApplication::activeWindow() == &popover; });
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
    QTest::keyClicks(QApplication::focusWidget(), u"typed"_s);
    EXPECT_EQ(popover_.findChild<QLineEdit*>()->text(), u"typed"_s);

    popover_.showRelativeTo({.view = button_}, RectEdge::MaxX);
    EXPECT_GT(content().left(), anchor.right()) << "one that is shown moves";
}

TEST_F(PopoverTest, FollowsItsContentAndItsAnchor)
{
    show();
    const QRect before = content();
    popover_.findChild<QLineEdit*>()->setMinimumSize(250, 90);
    ASSERT_TRUE(eventually([&] { return content().width() >= 250; }));
    EXPECT_EQ(content().top(), before.top());
    EXPECT_NEAR(content().center().x(), onScreen(button_).center().x(), 1);

    const QRect large = content();
    window_.move(window_.pos() + QPoint(30, 20));
    EXPECT_TRUE(eventually([&] { return content() == large.translated(30, 20); }));
}

TEST_F(PopoverTest, HangsAtThePointerWhenThereIsNothingToPointAt)
{
    const QPoint spot = QGuiApplication::primaryScreen()->availableGeometry().center();
    QCursor::setPos(spot);
    popover_.showRelativeTo({}, RectEdge::MinY);
    QCursor::setPos(spot + QPoint(100, 100));
    popover_.findChild<QLineEdit*>()->setMinimumWidth(220);
    ASSERT_TRUE(eventually([&] { return content().width() >= 220; }));
    EXPECT_NEAR(content().center().x(), spot.x(), 1) << "follows the pointer";
    EXPECT_GT(content().top(), spot.y());
}

TEST_F(PopoverTest, StaysInPlaceWhenItsAnchorGoesAway)
{
    show();
    const QRect before = content();
    delete button_;
    popover_.findChild<QLineEdit*>()->setMinimumWidth(before.width() + 40);
    ASSERT_TRUE(eventually([&] { return content().width() >= before.width() + 40; }));
    EXPECT_EQ(content().top(), before.top());
    EXPECT_TRUE(popover_.isShown());
}

TEST_F(PopoverTest, TellsOnceThatItCameAndWentAndCanComeBack)
{
    const QSignalSpy came(&popover_, &Popover::didShow);
    const QSignalSpy gone(&popover_, &Popover::didClose);
    show();
    show();
    EXPECT_EQ(came.size(), 1);
    popover_.close();
    popover_.close();
    EXPECT_FALSE(popover_.isShown());
    EXPECT_TRUE(eventually([&] { return !popover_.isVisible(); }));
    EXPECT_EQ(gone.size(), 1);
    show();
    EXPECT_TRUE(popover_.isVisible());
    EXPECT_EQ(came.size(), 2);
}

TEST_F(PopoverTest, TransientOneClosesWhenTheUserTurnsToSomethingElse)
{
    show();
    clickOutside();
    EXPECT_FALSE(popover_.isShown());
    show();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(popover_.isShown());
    show();
    leaveApplication();
    EXPECT_FALSE(popover_.isShown());
    show();
    QTest::mouseClick(&popover_, Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_FALSE(popover_.isShown()) << "the shadow is outside";
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

    QDialog dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    QTest::mouseClick(&dialog, Qt::LeftButton);
    leaveApplication();
    EXPECT_TRUE(popover_.isShown()) << "a modal window";
}

TEST_F(PopoverTest, TransientOneStaysAsLongAsItsChildrenDo)
{
    show();
    Popover child;
    Popover grandchild;
    for (Popover* popover : {&child, &grandchild})
        fill(*popover);
    child.showRelativeTo({.view = popover_.findChild<QComboBox*>()}, RectEdge::MaxX);
    grandchild.showRelativeTo({.view = child.findChild<QComboBox*>()}, RectEdge::MaxX);
    ASSERT_TRUE(becomesActive(grandchild));
    QTest::mouseClick(child.contentView(), Qt::LeftButton);
    clickOutside();
    leaveApplication();
    EXPECT_TRUE(popover_.isShown());
    grandchild.close();
    clickOutside();
    EXPECT_TRUE(popover_.isShown());
    EXPECT_TRUE(becomesActive(child)) << "the keyboard goes back to where it was";
    child.close();
    clickOutside();
    EXPECT_FALSE(popover_.isShown());
}

TEST_F(PopoverTest, AChildHasTheKeyboardBeforeIt)
{
    show();
    Popover child;
    fill(child);
    child.showRelativeTo({.view = popover_.findChild<QComboBox*>()}, RectEdge::MaxX);
    ASSERT_TRUE(becomesActive(child));
    popover_.showRelativeTo({.view = button_}, RectEdge::MinY);
    EXPECT_TRUE(becomesActive(child)) << "as when the same command shows it again";
    popover_.activateWindow();
    EXPECT_TRUE(becomesActive(child)) << "as when the user clicks on it";
    child.close();
    EXPECT_TRUE(becomesActive(popover_));
}

} // namespace
} // namespace quillon
