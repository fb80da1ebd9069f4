#include "ExportedMenu_linux.h"

#include <QDialog>

#include <gtest/gtest.h>
#include <memory>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class ExportedMenuTest : public testing::Test {
protected:
    QAction* copy(qsizetype index) const { return exported_.actions().value(index); }

    QMenu menu_;
    QAction* first_ = menu_.addAction(u"First"_s);
    QAction* second_ = menu_.addAction(u"Second"_s);
    ExportedMenu exported_{menu_};
};

TEST_F(ExportedMenuTest, FollowsItsSourceAndTriggersIt)
{
    second_->setText(u"A_B"_s);
    second_->setCheckable(true);
    first_->setVisible(false);
    EXPECT_EQ(copy(1)->text(), u"A__B"_s);
    EXPECT_FALSE(copy(0)->isVisible());

    copy(1)->trigger();
    EXPECT_TRUE(second_->isChecked());
    second_->setChecked(false);
    EXPECT_FALSE(copy(1)->isChecked());

    menu_.insertSeparator(second_);
    EXPECT_TRUE(copy(1)->isSeparator());
    delete first_;
    EXPECT_EQ(exported_.actions().size(), 2);
}

TEST_F(ExportedMenuTest, DoesNothingWhileAModalWindowIsToBeAnswered)
{
    second_->setCheckable(true);
    QDialog dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.showMinimized();
    copy(1)->trigger();
    EXPECT_FALSE(second_->isChecked());
    EXPECT_FALSE(copy(1)->isChecked());
    EXPECT_FALSE(dialog.isMinimized()) << "the user gets to see what waits";
    dialog.close();
    copy(1)->trigger();
    EXPECT_TRUE(second_->isChecked());
}

TEST_F(ExportedMenuTest, FollowsSubmenusThatComeAndAreReplaced)
{
    for (const auto& title : {u"1 hour"_s, u"2 hours"_s}) {
        auto* submenu = new QMenu(&menu_);
        QAction* inner = submenu->addAction(title);
        first_->setMenu(submenu);
        ASSERT_TRUE(copy(0)->menu());
        int triggered = 0;
        QObject::connect(inner, &QAction::triggered, &menu_, [&triggered] { ++triggered; });
        copy(0)->menu()->actions().constFirst()->trigger();
        EXPECT_EQ(triggered, 1);
        int shown = 0;
        QObject::connect(submenu, &QMenu::aboutToShow, &menu_, [&shown] { ++shown; });
        Q_EMIT copy(0)->menu()->aboutToShow();
        EXPECT_EQ(shown, 1) << "what the source does before it is shown";
    }
}

TEST_F(ExportedMenuTest, OutlivesItsSourceAndAnActionThatRemovesItself)
{
    QObject::connect(first_, &QAction::triggered, &menu_, [this] { menu_.removeAction(first_); });
    copy(0)->trigger();
    EXPECT_EQ(exported_.actions().size(), 1);

    auto source = std::make_unique<QMenu>();
    source->addAction(u"Gone"_s);
    const ExportedMenu orphan(*source);
    source.reset();
    orphan.actions().constFirst()->trigger();
}

} // namespace
} // namespace quillon
