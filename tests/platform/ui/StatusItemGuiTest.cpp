#include "Waiting.h"
#include "host/FakeSettingsPortal.h"
#include "host/FakeStatusNotifierTray.h"
#include "host/Probe.h"
#include "host/VirtualDisplay.h"
#include "host/WaylandCompositor.h"

#include <QRegularExpression>
#include <QSignalSpy>

#include <gtest/gtest.h>
#include <memory>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

/// A desktop with nothing on it yet but a display and a bus.
class StatusItemTest : public testing::Test {
protected:
    ~StatusItemTest() override
    {
        for (const QString& name : std::as_const(connections_))
            QDBusConnection::disconnectFromBus(name);
    }

    QDBusConnection connection()
    {
        connections_.append(u"desktop %1"_s.arg(connections_.size()));
        return bus_.connect(connections_.last());
    }
    std::unique_ptr<FakeStatusNotifierTray> statusNotifierTray(bool withHost = true)
    {
        return std::make_unique<FakeStatusNotifierTray>(connection(), withHost);
    }
    std::unique_ptr<XEmbedTray> xembedTray() { return std::make_unique<XEmbedTray>(display_); }
    void start(const QString& placement, const QStringList& environment = {})
    {
        probe_ = std::make_unique<Probe>(bus_, placement, display_.variables() + environment);
    }

    bool barComes()
    {
        return eventually([this] { return probe_->bar().has_value(); });
    }
    bool barGoes()
    {
        return eventually([this] { return !probe_->bar(); });
    }
    bool menuOpens()
    {
        return eventually([this] { return probe_->isMenuOpen(); });
    }
    bool menuCloses()
    {
        return eventually([this] { return !probe_->isMenuOpen(); });
    }
    static bool itemComes(const FakeStatusNotifierTray& tray)
    {
        return eventually([&tray] { return tray.items().size() == 1; });
    }
    static bool itemComes(const XEmbedTray& tray)
    {
        return eventually([&tray] { return tray.holds(Probe::windowName()); });
    }
    /// Whether a minimised alert comes back by what `click` does, and the menu stays closed.
    template<typename Click>
    bool alertComesBack(Click click)
    {
        probe_->tell(u"alert"_s);
        const auto isMinimizedAfter = [this](const QString& command) {
            return probe_->tell(command)[u"alertMinimized"_s].toBool();
        };
        // A window manager forgets of a window that it does not know yet.
        EXPECT_TRUE(eventually([&] { return isMinimizedAfter(u"minimize"_s) && isMinimizedAfter(u"state"_s); }));
        click();
        return eventually([&] { return !isMinimizedAfter(u"state"_s); }) && !probe_->isMenuOpen();
    }
    /// The middle of the item's image, in pixels of the display.
    QPoint imageInBar(int scale = 1)
    {
        const QRect bar = probe_->bar().value_or(QRect());
        constexpr int fromRight = 18;
        return {(bar.right() - fromRight) * scale, bar.center().y() * scale};
    }

    VirtualDisplay display_;
    PrivateBus bus_;
    std::unique_ptr<Probe> probe_;

private:
    QStringList connections_;
};

TEST_F(StatusItemTest, GoesIntoAStatusNotifierTrayAndTellsOfItself)
{
    const auto tray = statusNotifierTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*tray));
    EXPECT_FALSE(probe_->bar());

    const QString item = tray->items().constFirst();
    EXPECT_EQ(tray->text(item, u"Id"_s), u"status_item_probe"_s);
    EXPECT_EQ(tray->text(item, u"Category"_s), u"SystemServices"_s);
    EXPECT_TRUE(tray->property(item, u"ItemIsMenu"_s, u"b"_s).toBool());
    EXPECT_EQ(tray->text(item, u"Title"_s), u"Quillon"_s);
    EXPECT_EQ(tray->text(item, u"Status"_s), u"Active"_s);
    EXPECT_EQ(tray->text(item, u"XAyatanaLabel"_s), u"Next: 5h 12m"_s);
    EXPECT_EQ(tray->text(item, u"IconName"_s), QString()) << "no theme has the icon";
    EXPECT_EQ(tray->toolTip(item).title, u"Quillon"_s);
    EXPECT_EQ(tray->toolTip(item).text, u"Next:\n5h 12m"_s);
    const auto idle = tray->pixmaps(item, u"IconPixmap"_s);
    EXPECT_EQ(idle.value(0).pixels.size(), 16 * 16 * 4);
    EXPECT_TRUE(tray->pixmaps(item, u"AttentionIconPixmap"_s).isEmpty());

    tray->takeSignals();
    probe_->tell(u"title 45.3%|2m"_s);
    EXPECT_EQ(tray->text(item, u"XAyatanaLabel"_s), u"45.3% – 2m"_s);
    EXPECT_EQ(tray->takeSignals(), (QStringList{u"NewToolTip"_s, u"XAyatanaNewLabel"_s}));
    probe_->tell(u"title"_s);
    probe_->tell(u"failure clock.arrow.2.circlepath"_s);
    EXPECT_EQ(tray->text(item, u"Status"_s), u"NeedsAttention"_s);
    EXPECT_EQ(tray->text(item, u"Title"_s), u"Quillon: It <failed>."_s);
    EXPECT_EQ(tray->text(item, u"IconAccessibleDesc"_s), u"It <failed>."_s);
    EXPECT_EQ(tray->toolTip(item).text, u"It &lt;failed&gt;."_s);
    const auto failed = tray->pixmaps(item, u"AttentionIconPixmap"_s);
    EXPECT_NE(failed, idle);
    EXPECT_EQ(failed, tray->pixmaps(item, u"IconPixmap"_s));
    const QStringList told = tray->takeSignals();
    for (const auto& signal : {u"NewTitle"_s, u"NewIcon"_s, u"NewAttentionIcon"_s, u"NewStatus"_s, u"NewToolTip"_s})
        EXPECT_TRUE(told.contains(signal)) << signal.toStdString();
}

TEST_F(StatusItemTest, AHostDrawsTheMenuAndClicksInIt)
{
    const auto tray = statusNotifierTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*tray));
    const QString item = tray->items().constFirst();
    EXPECT_EQ(tray->menuLabels(item),
              (QStringList{u"Back up now"_s, u"Pause"_s, u"Browse A__B & C & ____D"_s, u"Quit"_s}));
    const auto items = tray->menu(item).children;
    EXPECT_TRUE(tray->aboutToShowMenu(item, items[1].id)) << "the submenu is filled as it opens";
    EXPECT_TRUE(tray->takeSignals().contains(u"LayoutUpdated"_s));

    EXPECT_EQ(tray->menuEvent(item, 77, u"clicked"_s), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    const auto chosen = [this] { return probe_->tell(u"state"_s)[u"chosen"_s].toString(); };
    EXPECT_EQ(tray->menuEvent(item, items[0].id, u"clicked"_s), QString());
    EXPECT_TRUE(eventually([&] { return chosen() == u"Back up now"_s; }));
    EXPECT_TRUE(alertComesBack([&] { tray->menuEvent(item, 0, u"opened"_s); }));
}

TEST_F(StatusItemTest, OpensItsOwnMenuForAHostThatDrawsNone)
{
    const auto tray = statusNotifierTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*tray));
    const QString item = tray->items().constFirst();
    for (const auto& method : {u"Activate"_s, u"ContextMenu"_s}) {
        EXPECT_EQ(tray->callAtPlace(item, method), QString());
        EXPECT_TRUE(menuOpens());
        display_.pressKey(u"Escape"_s);
        ASSERT_TRUE(menuCloses());
    }
    EXPECT_TRUE(alertComesBack([&] { tray->callAtPlace(item, u"Activate"_s); }));
}

TEST_F(StatusItemTest, GoesIntoAnXEmbedTray)
{
    const auto tray = xembedTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*tray));
    EXPECT_FALSE(probe_->bar());
    ASSERT_TRUE(probe_->icon());
    display_.click(probe_->icon()->center());
    EXPECT_TRUE(menuOpens());
    display_.click(probe_->icon()->center());
    EXPECT_TRUE(menuCloses()) << "nothing of the menu lies over the icon";
    EXPECT_TRUE(probe_->tell(u"state"_s)[u"chosen"_s].toString().isEmpty());
    EXPECT_TRUE(alertComesBack([this] { display_.click(probe_->icon()->center()); }));
}

TEST_F(StatusItemTest, TheBarGivesWayToAStatusNotifierTrayAndComesBack)
{
    start(u"auto"_s);
    ASSERT_TRUE(barComes());

    auto tray = statusNotifierTray(false);
    tray->setHost(true);
    ASSERT_TRUE(itemComes(*tray));
    EXPECT_TRUE(barGoes());

    tray.reset();
    ASSERT_TRUE(barComes());
    display_.click(imageInBar());
    EXPECT_TRUE(menuOpens()) << "the menu that the tray showed works in the bar";
    display_.pressKey(u"Escape"_s);
    ASSERT_TRUE(menuCloses());

    tray = statusNotifierTray();
    ASSERT_TRUE(itemComes(*tray));
    EXPECT_TRUE(barGoes());
    EXPECT_EQ(tray->menuLabels(tray->items().constFirst()).size(), 4);

    tray->setHost(false);
    EXPECT_TRUE(barComes()) << "a tray without a host shows nothing";
}

TEST_F(StatusItemTest, TheBarGivesWayToAnXEmbedTrayAndComesBack)
{
    start(u"auto"_s);
    ASSERT_TRUE(barComes());
    for (int turn = 0; turn < 2; ++turn) {
        const auto tray = xembedTray();
        ASSERT_TRUE(itemComes(*tray));
        EXPECT_TRUE(barGoes());
        tray->takeDown();
        EXPECT_TRUE(barComes());
    }
}

TEST_F(StatusItemTest, MovesBetweenTraysOfBothKinds)
{
    auto host = statusNotifierTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*host));
    const auto panel = xembedTray();
    ASSERT_TRUE(eventually([&] { return panel->isUp(); }));
    host.reset();
    ASSERT_TRUE(itemComes(*panel));
    EXPECT_FALSE(probe_->bar());

    host = statusNotifierTray();
    ASSERT_TRUE(itemComes(*host));
    EXPECT_TRUE(eventually([&] { return !panel->holds(Probe::windowName()); }));
    EXPECT_EQ(host->items().size(), 1) << "there is no second item of Qt's";
}

TEST_F(StatusItemTest, RegistersWithAWatcherThatTakesTheOldOnesPlaceWithoutAGap)
{
    auto first = statusNotifierTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*first));
    const auto second = statusNotifierTray(false);
    first.reset();
    ASSERT_TRUE(itemComes(*second));
    EXPECT_TRUE(barComes()) << "nobody shows its items yet";
    second->setHost(true);
    EXPECT_TRUE(barGoes());
}

TEST_F(StatusItemTest, NoItemOfQtsStaysWhereAHostComesAtTheSameMomentAsAnXEmbedTray)
{
    const auto host = statusNotifierTray(false);
    start(u"auto"_s);
    ASSERT_TRUE(barComes());
    host->setHostSilently();
    const QSignalSpy registered(host.get(), &FakeStatusNotifierTray::StatusNotifierItemRegistered);
    const auto panel = xembedTray();
    EXPECT_TRUE(eventually([&] { return !registered.isEmpty() && host->items().isEmpty(); }));
    EXPECT_TRUE(probe_->bar());
    host->setHost(true);
    EXPECT_TRUE(itemComes(*host));
    EXPECT_TRUE(barGoes());
}

TEST_F(StatusItemTest, StaysWhereItIsToldOrWaitsForATrayWhereTheBarIsUnwanted)
{
    start(u"tray"_s);
    EXPECT_FALSE(probe_->bar());
    const auto tray = statusNotifierTray();
    EXPECT_TRUE(itemComes(*tray));
    EXPECT_FALSE(probe_->bar());
    start(u"bar"_s);
    EXPECT_TRUE(barComes());
    EXPECT_TRUE(eventually([&] { return tray->items().isEmpty(); }));
}

TEST_F(StatusItemTest, ClicksOpenAndCloseTheMenuUnderTheBar)
{
    start(u"bar"_s);
    ASSERT_TRUE(barComes());
    display_.click(imageInBar());
    ASSERT_TRUE(menuOpens());
    display_.click(imageInBar());
    EXPECT_TRUE(menuCloses()) << "the click that closes the menu does not open it again";

    display_.click(imageInBar());
    ASSERT_TRUE(menuOpens());
    display_.pressKey(u"Down"_s);
    display_.pressKey(u"Return"_s);
    EXPECT_TRUE(menuCloses());
    EXPECT_EQ(probe_->tell(u"state"_s)[u"chosen"_s].toString(), u"Back up now"_s);
}

TEST_F(StatusItemTest, TheBarKeepsOtherWindowsOffItsStrip)
{
    const auto panel = xembedTray();
    const auto workAreaBegins = [this](int top) {
        const QString area = u"_NET_WORKAREA(CARDINAL) = 0, %1, 1280, "_s.arg(top);
        return display_.ask(u"xprop"_s, {u"-root"_s, u"_NET_WORKAREA"_s}).startsWith(area);
    };
    for (const int scale : {1, 2}) {
        ASSERT_TRUE(eventually([&] { return workAreaBegins(0); })) << "nobody's strip";
        start(u"bar"_s, {u"QT_SCALE_FACTOR=%1"_s.arg(scale)});
        ASSERT_TRUE(barComes());
        EXPECT_TRUE(eventually([&] { return workAreaBegins((probe_->bar()->bottom() + 1) * scale); })) << scale;
        EXPECT_EQ(probe_->bar()->top(), 0) << "its own strip does not push the bar down";
        const QString hints =
            display_.ask(u"xprop"_s, {u"-name"_s, u"Quillon"_s, u"_NET_WM_WINDOW_TYPE"_s, u"_NET_WM_DESKTOP"_s});
        EXPECT_EQ(hints, u"_NET_WM_WINDOW_TYPE(ATOM) = _NET_WM_WINDOW_TYPE_DOCK\n"
                         "_NET_WM_DESKTOP(CARDINAL) = 4294967295\n"_s);
        EXPECT_TRUE(alertComesBack([&] { display_.click(imageInBar(scale)); }));
        probe_.reset();
    }
}

TEST_F(StatusItemTest, TheBarFollowsTheDesktopsColourScheme)
{
    constexpr uint dark = 1;
    constexpr uint light = 2;
    FakeSettingsPortal portal(connection(), dark);
    start(u"bar"_s);
    ASSERT_TRUE(barComes());
    const auto ground = [this] { return display_.screenshot().pixelColor(probe_->bar()->center()).lightness(); };
    EXPECT_TRUE(eventually([&] { return ground() > 20 && ground() < 60; }));
    portal.setColorScheme(light);
    EXPECT_TRUE(eventually([&] { return ground() > 230; }));
}

TEST(StatusItemOnWayland, IsASmallWindowWithATitleUntilThereIsATray)
{
    const PrivateBus bus;
    const WaylandCompositor compositor;
    Probe probe(bus, u"auto"_s, compositor.variables());
    ASSERT_TRUE(eventually([&] { return probe.bar().has_value(); }));
    constexpr int smallWidth = 200;
    const QRect window = *probe.bar();
    EXPECT_LT(window.width(), smallWidth);
    EXPECT_TRUE(eventually([&] { return compositor.messages().contains(R"(set_title("Quillon"))"); }));
    // A window that draws its own frame counts it in.
    const QByteArray bare = "set_window_geometry(0, 0, " + QByteArray::number(window.width()) + ", " +
                            QByteArray::number(window.height()) + ')';
    EXPECT_TRUE(eventually([&] { return compositor.messages().contains("set_window_geometry"); }));
    EXPECT_FALSE(compositor.messages().contains(bare));

    probe.tell(u"title Next: 1 day, 2 hours and 3 minutes|2"_s);
    EXPECT_TRUE(eventually([&] { return probe.bar() && probe.bar()->width() > window.width(); }));
    probe.tell(u"title"_s);
    EXPECT_TRUE(eventually([&] { return probe.bar() && probe.bar()->width() < smallWidth; })) << "no empty ground";
    constexpr int frame = 120;
    EXPECT_GE(probe.bar()->width(), frame) << "the title and the buttons of the frame have room";
    probe.tell(u"press"_s);
    EXPECT_TRUE(eventually([&] { return probe.isMenuOpen(); }));
    probe.tell(u"press"_s);

    // No program can raise a window there: one that waits for an answer is opened anew.
    const auto opened = [&] { return compositor.messages().count("get_toplevel"); };
    const auto before = opened();
    probe.tell(u"alert"_s);
    ASSERT_TRUE(eventually([&] { return opened() == before + 1; }));
    probe.tell(u"press"_s);
    EXPECT_TRUE(eventually([&] { return opened() == before + 2; }));
    const auto closed = [&] {
        return QString::fromUtf8(compositor.messages()).count(QRegularExpression(u"xdg_toplevel@\\d+\\.destroy"_s));
    };
    const auto closedBefore = closed();
    probe.tell(u"answer"_s);
    EXPECT_TRUE(eventually([&] { return closed() == closedBefore + 1; }));
    probe.tell(u"title Next:|1 hour"_s); // what the window does about the alert's end, it has done by now
    EXPECT_TRUE(eventually([&] { return probe.bar().has_value(); }));
    EXPECT_FALSE(compositor.messages().contains("set_minimized")) << "the alert's end takes nothing along";

    FakeStatusNotifierTray tray(bus.connect(u"desktop"_s));
    EXPECT_TRUE(eventually([&] { return tray.items().size() == 1 && !probe.bar(); }));
    EXPECT_EQ(tray.callAtPlace(tray.items().constFirst(), u"Activate"_s), u"org.freedesktop.DBus.Error.UnknownMethod"_s)
        << "hosts that are refused open their own menu";
    QDBusConnection::disconnectFromBus(u"desktop"_s);
}

} // namespace
} // namespace quillon
