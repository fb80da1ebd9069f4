#include "DBusMenu_linux.h"
#include "StatusNotifierItem_linux.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
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
                                      {u"A_B && C"_s, u"A__B & C"_s},
                                      {u"R&&D &now &or later"_s, u"R&D _now or later"_s},
                                      {u"Save\tCtrl+S"_s, u"Save"_s}})
        EXPECT_EQ(menuLabel(text), label);
}

TEST(NotifierPixmaps, AreBytesOfAlphaRedGreenBlue)
{
    QIcon icon;
    QPixmap pixmap(3, 3);
    pixmap.fill(QColor(1, 2, 3));
    icon.addPixmap(pixmap);
    EXPECT_EQ(notifierPixmaps(icon), (NotifierPixmaps{{3, 3, QByteArray("\xff\x01\x02\x03").repeated(9)}}));
}

QString json(const QVariantMap& properties)
{
    return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(properties)).toJson(QJsonDocument::Compact));
}

/// A menu as a host sees it, without a bus between them.
class DBusMenuTest : public testing::Test {
protected:
    DBusMenuTest()
    {
        submenu_.addAction(u"Inner"_s);
        first_->setMenu(&submenu_);
        exported_.setMenu(&menu_);
        told();
    }

    MenuLayout layout()
    {
        MenuLayout found;
        exported_.GetLayout(0, -1, {}, found);
        return found;
    }
    int id(qsizetype index) { return layout().children.value(index).id; }
    void event(int item, const QString& name = u"clicked"_s)
    {
        exported_.Event(item, name, QDBusVariant(QString()), 0);
        QCoreApplication::processEvents();
    }
    /// What the menu has told since it was asked last: numbers of menus with another layout, in order, and of items
    /// with their properties.
    QStringList told()
    {
        QCoreApplication::processEvents();
        QStringList all;
        for (const auto& signal : std::as_const(layouts_))
            all.append(u"layout %1"_s.arg(signal.at(1).toInt()));
        all.sort();
        for (const auto& signal : std::as_const(properties_)) {
            for (const auto& item : signal.at(0).value<QList<MenuItemProperties>>())
                all.append(u"item %1 %2"_s.arg(item.id).arg(json(item.properties)));
        }
        layouts_.clear();
        properties_.clear();
        return all;
    }

    bool waits_ = false; ///< something has to be answered first
    QMenu menu_;
    QMenu submenu_;
    QAction* first_ = menu_.addAction(u"First"_s);
    QAction* second_ = menu_.addAction(u"&Second"_s);
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
    QStringList told{json(layout().properties)};
    for (const MenuLayout& item : layout().children)
        told.append(json(item.properties));
    const QStringList expected{
        uR"({"children-display":"submenu"})"_s,
        uR"({"children-display":"submenu","enabled":true,"label":"First","visible":true})"_s,
        uR"({"enabled":true,"label":"_Second","toggle-state":1,"toggle-type":"checkmark","visible":true})"_s,
        uR"({"enabled":false,"label":"Radio","toggle-state":0,"toggle-type":"radio","visible":true})"_s,
        uR"({"type":"separator","visible":false})"_s};
    EXPECT_EQ(told, expected);
}

TEST_F(DBusMenuTest, TellsAsMuchAsTheHostAsksFor)
{
    const QVariantMap label{{u"label"_s, u"First"_s}};
    const int gone = 77;
    EXPECT_EQ(exported_.GetGroupProperties({gone, id(0)}, {u"label"_s}).value(0).properties, label);
    EXPECT_EQ(exported_.GetGroupProperties({}, {}).size(), 4) << "all of them, the menu itself included";
    EXPECT_EQ(exported_.EventGroup({{gone, u"clicked"_s, {}, 0}, {id(1), u"clicked"_s, {}, 0}}), QList<int>{gone});
    QObject::connect(&submenu_, &QMenu::aboutToShow, &menu_, [this] { submenu_.addAction(u"Filled"_s); });
    QList<int> unknown;
    EXPECT_EQ(exported_.AboutToShowGroup({0, gone, id(0)}, unknown), QList<int>{id(0)})
        << "the host is to ask again for this one";
    EXPECT_EQ(unknown, QList<int>{gone});
}

TEST_F(DBusMenuTest, TellsWhatHasChangedOnceForEachTurn)
{
    const int first = id(0);
    const int second = id(1);
    EXPECT_EQ(told(), QStringList());
    second_->setText(u"Other"_s);
    second_->setEnabled(false);
    EXPECT_EQ(told(), QStringList(uR"(item %1 {"enabled":false,"label":"Other","visible":true})"_s.arg(second)));

    menu_.insertSeparator(second_);
    submenu_.clear();
    EXPECT_EQ(told(), (QStringList{u"layout 0"_s, u"layout %1"_s.arg(first)}));
    EXPECT_EQ(id(2), second) << "an item keeps its number";

    first_->setMenu<QMenu*>(nullptr);
    second_->setCheckable(true);
    EXPECT_EQ(told(), QStringList(u"layout 0"_s));
    EXPECT_NE(id(0), first) << "an action of another kind is a new item";
    EXPECT_NE(id(2), second);

    QMenu another;
    second_->setMenu(&another);
    const int opener = id(2);
    told();
    another.addAction(u"Late"_s);
    EXPECT_EQ(told(), QStringList(u"layout %1"_s.arg(opener))) << "submenus that come are followed";
}

TEST_F(DBusMenuTest, AClickTriggersWhatCanBeChosenAtThatMoment)
{
    int triggered = 0;
    QObject::connect(second_, &QAction::triggered, &menu_, [&triggered] { ++triggered; });
    const int second = id(1);
    event(second);
    EXPECT_EQ(triggered, 1);
    event(second, u"hovered"_s);
    second_->setEnabled(false);
    event(second);
    second_->setEnabled(true);
    second_->setVisible(false);
    event(second);
    second_->setVisible(true);
    exported_.Event(second, u"clicked"_s, {}, 0);
    menu_.removeAction(second_); // while the click is under way
    QCoreApplication::processEvents();
    EXPECT_EQ(triggered, 1);
}

TEST_F(DBusMenuTest, AClickDoesNothingWhileSomethingWaitsAndTheHostTakesItsMarkBack)
{
    second_->setCheckable(true);
    const int second = id(1);
    told();
    waits_ = true;
    event(second);
    EXPECT_FALSE(second_->isChecked());
    EXPECT_TRUE(
        told().value(0).startsWith(uR"(item %1 {"enabled":true,"label":"_Second","toggle-state":0,)"_s.arg(second)));
    waits_ = false;
    event(second);
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
}

} // namespace
} // namespace quillon
