#include "Alert.h"
#include "AlertPopover.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <array>
#include <gtest/gtest.h>
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

    static std::shared_ptr<AlertPopover> make(const QString& name)
    {
        return AlertPopover::create({.messageText = name, .informativeText = {}, .buttons = threeButtons});
    }
    /// Shows an alert of that name over one of the views; its answers are noted.
    std::shared_ptr<AlertPopover> run(const QString& name, QWidget* view, RectEdge edge = RectEdge::MaxY)
    {
        auto alert = make(name);
        alert->runAsPopoverForView({.view = view}, edge, [this, name](int response) {
            noted_.append(name + u' ' + QString::number(response));
        });
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
    static QPushButton* button(int place)
    {
        return qobject_cast<Alert*>(shown().front()->contentView())->buttons().at(place);
    }
    static void click(int place = 0) { QTest::mouseClick(button(place), Qt::LeftButton); }
    void clickOutside() { QTest::mouseClick(window_.get(), Qt::LeftButton, {}, QPoint(5, 5)); }
    static QRect onScreen(const QWidget* widget) { return {widget->mapToGlobal(QPoint()), widget->size()}; }
    static QRect place() { return onScreen(shown().front()->contentView()); }
    static bool isAbove(const QRect& target)
    {
        return place().bottom() < target.top() && std::abs(place().center().x() - target.center().x()) <= 1;
    }

    std::unique_ptr<QWidget> window_ = std::make_unique<QWidget>();
    std::array<QPushButton*, 3> views_{};
    QStringList noted_; ///< such as "A 1000"
};

TEST_F(AlertPopoverTest, ClosesByItsButtonsOnlyWhichAnswerOnce)
{
    const std::weak_ptr<AlertPopover> alert = run(u"A"_s, views_[0], RectEdge::MaxX);
    EXPECT_GT(place().left(), onScreen(views_[0]).right());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(shown().front())->role(), QAccessible::AlertMessage);
    clickOutside();
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(visible(), u"A"_s);
    QPushButton* const second = button(1);
    QTest::mouseClick(second, Qt::LeftButton);
    second->click(); // a double click
    EXPECT_TRUE(shown().empty());
    EXPECT_TRUE(alert.expired()) << "an answered alert is gone";
    EXPECT_EQ(noted_, QStringList(u"A 1001"_s));
}

TEST_F(AlertPopoverTest, BringsBackWhatWasPushedAsideTheLatestFirstAboveItsOwnView)
{
    run(u"A"_s, views_[0], RectEdge::MaxX);
    QPushButton* const fading = button(0);
    run(u"B"_s, views_[1], RectEdge::MinY);
    fading->click();
    run(u"C"_s, views_[2], RectEdge::MinX);
    EXPECT_EQ(visible(), u"C"_s);
    EXPECT_TRUE(noted_.isEmpty()) << "being pushed aside is no answer";
    click(1);
    EXPECT_EQ(visible(), u"B"_s);
    EXPECT_TRUE(isAbove(onScreen(views_[1]))) << "on the upper side, wherever it was first";
    click(2);
    EXPECT_EQ(visible(), u"A"_s);
    EXPECT_TRUE(isAbove(onScreen(views_[0])));
    click();
    EXPECT_EQ(noted_, (QStringList{u"C 1001"_s, u"B 1002"_s, u"A 1000"_s}));
}

TEST_F(AlertPopoverTest, ABlockMayShowTheNextAlertAndOneThatIsThereMoves)
{
    run(u"A"_s, views_[0]);
    const auto asking = make(u"B"_s);
    asking->runAsPopoverForView({.view = views_[1]}, [this](int) { run(u"C"_s, views_[2]); });
    for (const QString& next : {u"C"_s, u"A"_s}) { // an answered alert does not come back
        click();
        EXPECT_EQ(visible(), next);
    }
    click();
    EXPECT_TRUE(shown().empty());

    const auto again = make(u"D"_s);
    int answers = 0;
    for (QPushButton* view : {views_[0], views_[1]}) // the second time it is there already
        again->runAsPopoverForView({.view = view}, [&answers](int) { ++answers; });
    EXPECT_TRUE(isAbove(onScreen(views_[1])));
    click();
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(answers, 1);

    again->runAsPopoverForView({.view = views_[0]});
    run(u"E"_s, views_[1]);
    again->runAsPopoverForView({.view = views_[0]}); // it waits no more
    for (const QString& next : {u"E"_s, u"0 popovers"_s}) {
        click();
        EXPECT_EQ(visible(), next);
    }
}

TEST_F(AlertPopoverTest, KeepsATransientPopoverOpenThatItPointsInto)
{
    Popover settings;
    auto* control = new QPushButton(u"?"_s);
    settings.setContentView(control);
    settings.setBehavior(PopoverBehavior::Transient);
    settings.showRelativeTo({.view = views_[0]}, RectEdge::MinY);
    const auto kept = run(u"A"_s, control, RectEdge::MaxX);
    clickOutside();
    EXPECT_TRUE(settings.isShown());
    const QRect controlPlace = onScreen(control);
    run(u"B"_s, views_[1]);
    clickOutside();
    EXPECT_TRUE(settings.isShown()) << "also while the alert waits";
    delete control;
    click();
    EXPECT_TRUE(isAbove(controlPlace)) << "where its view was";
    click();
    EXPECT_TRUE(settings.isShown());
    clickOutside();
    EXPECT_FALSE(settings.isShown());
}

} // namespace
} // namespace quillon
