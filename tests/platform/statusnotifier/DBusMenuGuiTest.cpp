#include "DBusMenu_linux.h"
#include "NotifierTypes_linux.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <QSignalSpy>

#include <gtest/gtest.h>
#include <memory>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(MenuLabel, MarksTheAccessKeyAndShowsEverythingElseAsItIs)
{
    for (const auto& [text, label] : {std::pair{u"Quit"_s, u"Quit"_s},
                                      {u"&Quit"_s, u"_Quit"_s},
                                      {u"A_B && C"_s, u"A__B & C"_s},
                                      {u"R&&D &now &or later"_s, u"R&D _now or later"_s},
                                      {u"Up &_"_s, u"Up ___"_s},
                                      {u"Save\tCtrl+S"_s, u"Save"_s},
                                      {u"End&"_s, u"End"_s}})
        EXPECT_EQ(menuLabel(text), label);
}

TEST(NotifierPixmaps, AreBytesOfAlphaRedGreenBlueForEachSize)
{
    QIcon icon;
    for (const int side : {1, 3}) {
        QPixmap pixmap(side, side);
        pixmap.fill(QColor(1, 2, 3));
        icon.addPixmap(pixmap);
    }
    const auto pixmaps = notifierPixmaps(icon);
    ASSERT_EQ(pixmaps.size(), 2);
    EXPECT_EQ(pixmaps[0], (NotifierPixmap{1, 1, QByteArray("\xff\x01\x02\x03")}));
    EXPECT_EQ(pixmaps[1].pixels.size(), 3 * 3 * 4);
}

/// A menu as a host sees it, without a bus between them.
class DBusMenuTest : public testing::Test {
protected:
    DBusMenuTest()
    {
        first_->setMenu(&submenu_);
        exported_.setMenu(&menu_);
        settle();
    }

    MenuLayout layout(int id = 0, int depth = -1, const QStringList& names = {})
    {
        MenuLayout found;
        exported_.GetLayout(id, depth, names, found);
        return found;
    }
    int id(qsizetype index) { return layout().children.value(index).id; }
    void event(int item, const QString& name)
    {
        exported_.Event(item, name, QDBusVariant(QString()), 0);
        QCoreApplication::processEvents();
    }
    /// Lets the menu tell what has changed, and forgets what it had told before.
    void settle()
    {
        QCoreApplication::processEvents();
        properties_.clear();
        layouts_.clear();
    }
    QList<int> changedLayouts() const
    {
        QList<int> parents;
        for (const auto& signal : layouts_)
            parents.append(signal.at(1).toInt());
        std::sort(parents.begin(), parents.end());
        return parents;
    }

    bool waits_ = false; ///< something has to be answered first
    QMenu menu_;
    QMenu submenu_;
    QAction* first_ = menu_.addAction(u"First"_s);
    QAction* second_ = menu_.addAction(u"&Second"_s);
    QAction* inner_ = submenu_.addAction(u"Inner"_s);
    DBusMenu exported_{QDBusConnection(u"none"_s), u"/Menu"_s, [this] { return waits_; }};
    QSignalSpy properties_{&exported_, &DBusMenu::ItemsPropertiesUpdated};
    QSignalSpy layouts_{&exported_, &DBusMenu::LayoutUpdated};
};

TEST_F(DBusMenuTest, TellsWhatEachItemIs)
{
    second_->setCheckable(true);
    second_->setChecked(true);
    QActionGroup group(&menu_);
    QAction* radio = group.addAction(menu_.addAction(u"Radio"_s));
    radio->setCheckable(true);
    radio->setEnabled(false);
    menu_.addSeparator()->setVisible(false);

    const MenuLayout root = layout();
    EXPECT_EQ(root.properties, (QVariantMap{{u"children-display"_s, u"submenu"_s}}));
    const QList<QVariantMap> expected{
        {{u"label"_s, u"First"_s}, {u"visible"_s, true}, {u"enabled"_s, true}, {u"children-display"_s, u"submenu"_s}},
        {{u"label"_s, u"_Second"_s},
         {u"visible"_s, true},
         {u"enabled"_s, true},
         {u"toggle-type"_s, u"checkmark"_s},
         {u"toggle-state"_s, 1}},
        {{u"label"_s, u"Radio"_s},
         {u"visible"_s, true},
         {u"enabled"_s, false},
         {u"toggle-type"_s, u"radio"_s},
         {u"toggle-state"_s, 0}},
        {{u"type"_s, u"separator"_s}, {u"visible"_s, false}}};
    ASSERT_EQ(root.children.size(), expected.size());
    for (qsizetype index = 0; index < expected.size(); ++index)
        EXPECT_EQ(root.children[index].properties, expected[index]) << index;
}

TEST_F(DBusMenuTest, TellsAsMuchAsTheHostAsksFor)
{
    EXPECT_TRUE(layout(0, 0).children.isEmpty());
    ASSERT_EQ(layout(0, 1).children.size(), 2);
    EXPECT_TRUE(layout(0, 1).children[0].children.isEmpty());
    EXPECT_EQ(layout(id(0), -1).children.value(0).properties[u"label"_s], u"Inner"_s);
    const QVariantMap label{{u"label"_s, u"First"_s}};
    EXPECT_EQ(layout(0, 1, {u"label"_s, u"no such"_s}).children[0].properties, label);
    EXPECT_EQ(exported_.GetProperty(id(0), u"label"_s).variant(), u"First"_s);
    const int gone = 77;
    ASSERT_EQ(exported_.GetGroupProperties({gone, id(0)}, {u"label"_s}).size(), 1);
    EXPECT_EQ(exported_.GetGroupProperties({id(0)}, {u"label"_s}).constFirst().properties, label);
    EXPECT_EQ(exported_.GetGroupProperties({}, {}).size(), 4) << "all of them, the menu itself included";
    EXPECT_EQ(exported_.EventGroup({{gone, u"clicked"_s, {}, 0}, {id(1), u"clicked"_s, {}, 0}}), QList<int>{gone});
    QList<int> unknown;
    exported_.AboutToShowGroup({0, gone}, unknown);
    EXPECT_EQ(unknown, QList<int>{gone});
}

TEST_F(DBusMenuTest, TellsWhatHasChangedOnceForEachTurn)
{
    const int second = id(1);
    settle();
    second_->setText(u"Other"_s);
    second_->setEnabled(false);
    QCoreApplication::processEvents();
    ASSERT_EQ(properties_.size(), 1);
    const auto updated = properties_[0][0].value<QList<MenuItemProperties>>();
    ASSERT_EQ(updated.size(), 1);
    EXPECT_EQ(updated[0].id, second);
    EXPECT_EQ(updated[0].properties[u"label"_s], u"Other"_s);
    EXPECT_EQ(updated[0].properties[u"enabled"_s], false);
    EXPECT_TRUE(layouts_.isEmpty());

    settle();
    menu_.insertSeparator(second_);
    submenu_.clear();
    QCoreApplication::processEvents();
    EXPECT_EQ(changedLayouts(), (QList<int>{0, id(0)}));
    EXPECT_EQ(id(2), second) << "an item keeps its number";
}

TEST_F(DBusMenuTest, AnActionOfAnotherKindIsANewItem)
{
    const QList<int> before{id(0), id(1)};
    settle();
    first_->setMenu<QMenu*>(nullptr);
    second_->setCheckable(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(changedLayouts(), QList<int>{0});
    EXPECT_NE(id(0), before[0]);
    EXPECT_NE(id(1), before[1]);

    auto another = std::make_unique<QMenu>();
    second_->setMenu(another.get());
    const int opener = id(1);
    settle();
    another->addAction(u"Late"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(changedLayouts(), QList<int>{opener}) << "submenus that come are followed";
    another.reset();
    EXPECT_TRUE(layout().children[1].children.isEmpty());
}

TEST_F(DBusMenuTest, AClickTriggersWhatCanBeChosenAtThatMoment)
{
    int triggered = 0;
    QObject::connect(second_, &QAction::triggered, &menu_, [&triggered] { ++triggered; });
    const int second = id(1);
    event(second, u"clicked"_s);
    EXPECT_EQ(triggered, 1);
    event(second, u"hovered"_s);
    second_->setEnabled(false);
    event(second, u"clicked"_s);
    second_->setEnabled(true);
    second_->setVisible(false);
    event(second, u"clicked"_s);
    second_->setVisible(true);
    exported_.Event(second, u"clicked"_s, {}, 0);
    menu_.removeAction(second_); // while the click is under way
    settle();
    EXPECT_EQ(triggered, 1);

    QObject::connect(inner_, &QAction::triggered, &menu_, [this] { delete inner_; });
    event(layout().children[0].children[0].id, u"clicked"_s);
    EXPECT_TRUE(submenu_.isEmpty());
}

TEST_F(DBusMenuTest, AClickDoesNothingWhileSomethingWaitsAndTheHostTakesItsMarkBack)
{
    second_->setCheckable(true);
    const int second = id(1);
    waits_ = true;
    event(second, u"clicked"_s);
    QCoreApplication::processEvents();
    EXPECT_FALSE(second_->isChecked());
    ASSERT_EQ(properties_.size(), 1);
    EXPECT_EQ(properties_[0][0].value<QList<MenuItemProperties>>().value(0).properties[u"toggle-state"_s], 0);
    waits_ = false;
    event(second, u"clicked"_s);
    EXPECT_TRUE(second_->isChecked());
}

TEST_F(DBusMenuTest, OpensAndClosesAsTheHostDoes)
{
    QStringList happened;
    for (auto* menu : {&menu_, &submenu_}) {
        const QString name = menu == &menu_ ? u"root"_s : u"submenu"_s;
        QObject::connect(menu, &QMenu::aboutToShow, menu, [&happened, name] { happened.append(name + u" opens"_s); });
        QObject::connect(menu, &QMenu::aboutToHide, menu, [&happened, name] { happened.append(name + u" closes"_s); });
    }
    EXPECT_FALSE(exported_.AboutToShow(0));
    event(id(0), u"opened"_s);
    event(id(0), u"closed"_s);
    event(0, u"closed"_s);
    EXPECT_EQ(happened, (QStringList{u"root opens"_s, u"submenu opens"_s, u"submenu closes"_s, u"root closes"_s}));
    EXPECT_FALSE(exported_.AboutToShow(id(1))) << "which opens nothing";

    QObject::connect(&submenu_, &QMenu::aboutToShow, &menu_, [this] { submenu_.addAction(u"Filled"_s); });
    EXPECT_TRUE(exported_.AboutToShow(id(0))) << "the host is to ask again";
    EXPECT_EQ(layout(id(0)).children.size(), 2);
}

TEST_F(DBusMenuTest, OutlivesItsMenu)
{
    auto other = std::make_unique<QMenu>();
    const QAction* gone = other->addAction(u"Gone"_s);
    exported_.setMenu(other.get());
    QCoreApplication::processEvents();
    EXPECT_TRUE(changedLayouts().contains(0));
    const int id = layout().children.value(0).id;
    EXPECT_EQ(exported_.GetProperty(id, u"label"_s).variant(), gone->text());
    exported_.Event(id, u"clicked"_s, {}, 0);
    other.reset();
    settle();
    EXPECT_TRUE(layout().children.isEmpty());
}

} // namespace
} // namespace quillon
