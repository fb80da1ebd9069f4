#include "Alert.h"
#include "AlertPopover.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

const QStringList threeButtons{u"First"_s, u"Second"_s, u"Third"_s};

class AlertPopoverTest : public testing::Test {
protected:
    AlertPopoverTest()
    {
        window_->resize(600, 400);
        window_->move(100, 250);
        int x = 0;
        for (QPushButton*& view : views_) {
            view = new QPushButton(window_.get());
            view->setGeometry(x += 150, 180, 60, 30);
        }
        window_->show();
    }
    ~AlertPopoverTest() override
    {
        while (!shown().empty())
            press(Qt::Key_Escape);
    }

    /// Shows an alert of that name over one of the views; its answers are noted.
    std::shared_ptr<AlertPopover> run(const QString& name, QWidget* view, RectEdge edge = RectEdge::MaxY)
    {
        auto alert = AlertPopover::create(
            {.messageText = name, .informativeText = u"What it is about."_s, .buttons = threeButtons});
        alert->runAsPopoverForView({.view = view}, edge,
                                   [this, name](int response) { answers_[name].push_back(response); });
        return alert;
    }
    /// Those with an alert in them.
    static std::vector<Popover*> shown()
    {
        std::vector<Popover*> found;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* popover = qobject_cast<Popover*>(window);
                popover && popover->isShown() && qobject_cast<Alert*>(popover->contentView()))
                found.push_back(popover);
        return found;
    }
    /// The name of the one alert on the screen.
    static QString visible()
    {
        const auto popovers = shown();
        return popovers.size() == 1 ? popovers.front()->contentView()->accessibleName()
                                    : u"%1 popovers"_s.arg(popovers.size());
    }
    static QPushButton* button(const QString& title)
    {
        for (auto* candidate : shown().front()->findChildren<QPushButton*>())
            if (candidate->text() == title)
                return candidate;
        return nullptr;
    }
    static void click(const QString& title) { QTest::mouseClick(button(title), Qt::LeftButton); }
    static void press(Qt::Key key)
    {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == shown().front(); }));
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    static QRect onScreen(const QWidget* widget) { return {widget->mapToGlobal(QPoint()), widget->size()}; }
    static QRect place() { return onScreen(shown().front()->contentView()); }
    static bool isAbove(const QWidget* view)
    {
        const QRect target = onScreen(view);
        return place().bottom() < target.top() && std::abs(place().center().x() - target.center().x()) <= 1;
    }

    std::unique_ptr<QWidget> window_ = std::make_unique<QWidget>();
    std::array<QPushButton*, 3> views_{};
    std::map<QString, std::vector<int>> answers_;
};

TEST_F(AlertPopoverTest, AnswersOnceWithTheChosenButtonsPlaceAndCloses)
{
    int expected = 1000;
    for (const QString& title : threeButtons) {
        answers_.clear();
        const std::weak_ptr<AlertPopover> alert = run(u"A"_s, views_[0]);
        EXPECT_TRUE(isAbove(views_[0]));
        EXPECT_TRUE(answers_.empty()) << "the call does not wait for the answer";
        QPushButton* chosen = button(title);
        QTest::mouseClick(chosen, Qt::LeftButton);
        chosen->click(); // a double click
        EXPECT_EQ(answers_[u"A"_s], (std::vector{expected++}));
        EXPECT_TRUE(shown().empty());
        EXPECT_TRUE(alert.expired()) << "an answered alert is gone";
    }
}

TEST_F(AlertPopoverTest, ClosesByItsButtonsOnlyWhichReturnAndEscapePress)
{
    run(u"A"_s, views_[0], RectEdge::MaxX);
    EXPECT_GT(place().left(), onScreen(views_[0]).right());
    QTest::mouseClick(window_.get(), Qt::LeftButton, {}, QPoint(5, 5));
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(visible(), u"A"_s);
    press(Qt::Key_Return);
    run(u"A"_s, views_[0]);
    press(Qt::Key_Escape);
    EXPECT_EQ(answers_[u"A"_s], (std::vector{1000, 1002}));
    EXPECT_TRUE(shown().empty());
}

TEST_F(AlertPopoverTest, BringsBackWhatWasPushedAsideTheLatestFirstAboveItsOwnView)
{
    const auto first = run(u"A"_s, views_[0], RectEdge::MaxX);
    run(u"B"_s, views_[1], RectEdge::MinY);
    EXPECT_EQ(first->parentPopover(), nullptr);
    run(u"C"_s, views_[2], RectEdge::MinX);
    EXPECT_EQ(visible(), u"C"_s);
    EXPECT_TRUE(answers_.empty()) << "being pushed aside is no answer";

    click(u"Second"_s);
    EXPECT_EQ(visible(), u"B"_s);
    EXPECT_TRUE(isAbove(views_[1])) << "on the upper side, wherever it was first";
    click(u"Third"_s);
    EXPECT_EQ(visible(), u"A"_s);
    EXPECT_TRUE(isAbove(views_[0]));
    click(u"First"_s);
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(answers_, (std::map<QString, std::vector<int>>{{u"A"_s, {1000}}, {u"B"_s, {1002}}, {u"C"_s, {1001}}}));
}

TEST_F(AlertPopoverTest, ABlockMayShowTheNextAlert)
{
    run(u"A"_s, views_[0]);
    const auto asking = AlertPopover::create({.messageText = u"B"_s, .informativeText = {}, .buttons = threeButtons});
    asking->runAsPopoverForView({.view = views_[1]}, [this](int) { run(u"C"_s, views_[2]); });
    click(u"First"_s);
    EXPECT_EQ(visible(), u"C"_s);
    click(u"First"_s);
    EXPECT_EQ(visible(), u"A"_s) << "an answered alert does not come back";
    click(u"First"_s);
    EXPECT_TRUE(shown().empty());
}

TEST_F(AlertPopoverTest, ABlockMayShowItsOwnAlertAgain)
{
    const auto alert = AlertPopover::create({.messageText = u"A"_s, .informativeText = {}, .buttons = threeButtons});
    int answers = 0;
    alert->runAsPopoverForView({.view = views_[0]}, [&](int) {
        ++answers;
        alert->runAsPopoverForView({.view = views_[1]}, [&](int) { ++answers; });
    });
    alert->runAsPopoverForView({.view = views_[0]}, alert->completionBlock()); // it is there already
    click(u"First"_s);
    EXPECT_EQ(visible(), u"A"_s);
    EXPECT_TRUE(isAbove(views_[1]));
    click(u"First"_s);
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(answers, 2);
}

TEST_F(AlertPopoverTest, AWaitingOneComesBackToWhereItsViewWasWhenThatIsGone)
{
    run(u"A"_s, views_[0]);
    const QRect before = place();
    run(u"B"_s, views_[1]);
    window_.reset();
    EXPECT_EQ(visible(), u"B"_s);
    click(u"First"_s);
    EXPECT_EQ(visible(), u"A"_s);
    EXPECT_EQ(place(), before);
    click(u"Second"_s);
    EXPECT_EQ(answers_[u"A"_s], (std::vector{1001}));
}

TEST_F(AlertPopoverTest, KeepsATransientPopoverOpenThatItPointsInto)
{
    Popover settings;
    auto* control = new QPushButton(u"?"_s);
    settings.setContentView(control);
    settings.setBehavior(PopoverBehavior::Transient);
    settings.showRelativeTo({.view = views_[0]}, RectEdge::MinY);
    run(u"A"_s, control, RectEdge::MaxX);
    QTest::mouseClick(window_.get(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(settings.isShown());
    run(u"B"_s, views_[1]);
    QTest::mouseClick(window_.get(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(settings.isShown()) << "A is to come back and point at something";
    click(u"First"_s);
    click(u"First"_s);
    EXPECT_TRUE(settings.isShown());
    QTest::mouseClick(window_.get(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(settings.isShown());
}

} // namespace
} // namespace quillon
