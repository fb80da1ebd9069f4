#include "PrivateBus.h"
#include "ShownStatusItem_linux.h"
#include "host/FakeSettingsPortal.h"
#include "host/FakeStatusNotifierTray.h"
#include "host/Probe.h"
#include "host/VirtualDisplay.h"
#include "host/WaylandCompositor.h"

#include <QGuiApplication>
#include <QTemporaryDir>

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
    void start(const QString& placement, const QStringList& environment = {})
    {
        probe_ = std::make_unique<Probe>(placement, display_.variables() + environment + QStringList{bus_.variable()});
    }

    bool barIsUp(bool up)
    {
        return runUntil([&] { return probe_->place(u"bar"_s).has_value() == up; });
    }
    bool menuIsOpen(bool open) { return probe_->becomes(u"menuOpen"_s, open); }
    static bool itemComes(const FakeStatusNotifierTray& tray)
    {
        return runUntil([&tray] { return tray.items().size() == 1; });
    }
    static bool itemComes(const XEmbedTray& tray)
    {
        return runUntil([&tray] { return tray.holds(u"desktop_probe"_s); });
    }
    /// Whether a minimised alert comes back by what `click` does, and the menu stays closed.
    template<typename Click>
    bool alertComesBack(Click click)
    {
        probe_->tell(u"alert"_s);
        // A window manager forgets of a window that it does not know yet.
        EXPECT_TRUE(runUntil([&] {
            return probe_->tell(u"minimize"_s)[u"alertMinimized"_s].toBool() &&
                   probe_->state(u"alertMinimized"_s).toBool();
        }));
        click();
        return probe_->becomes(u"alertMinimized"_s, false) && !probe_->state(u"menuOpen"_s).toBool();
    }
    /// On the middle of the item's image.
    void clickInBar(int scale = 1)
    {
        const QRect bar = probe_->place(u"bar"_s).value_or(QRect());
        constexpr int fromRight = 18;
        display_.click(QPoint(bar.right() - fromRight, bar.center().y()) * scale);
    }
    void clickIcon() { display_.click(probe_->place(u"icon"_s).value_or(QRect()).center()); }

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
    EXPECT_FALSE(probe_->place(u"bar"_s));
    const auto told = [&tray] {
        QStringList texts{tray->toolTip()};
        for (const auto& property : {u"Title"_s, u"Status"_s, u"XAyatanaLabel"_s, u"IconAccessibleDesc"_s})
            texts.append(tray->text(property));
        return texts.join(u" | "_s).toStdString();
    };
    EXPECT_EQ(told(), "Next:\n5h 12m | Quillon | Active | Next: 5h 12m | ");
    const auto idle = tray->pixmaps(u"IconPixmap"_s);
    EXPECT_FALSE(idle.isEmpty());
    probe_->tell(u"title 45.3%|2m"_s);
    EXPECT_EQ(told(), "45.3%\n2m | Quillon | Active | 45.3% – 2m | ");
    probe_->tell(u"title"_s);
    probe_->tell(u"failure clock.arrow.2.circlepath"_s);
    EXPECT_EQ(told(), "It &lt;failed&gt;. | Quillon: It <failed>. | NeedsAttention |  | It <failed>.");
    EXPECT_NE(tray->pixmaps(u"AttentionIconPixmap"_s), idle);
    for (const auto& signal :
         {u"NewTitle"_s, u"NewIcon"_s, u"NewAttentionIcon"_s, u"NewStatus"_s, u"NewToolTip"_s, u"XAyatanaNewLabel"_s})
        EXPECT_TRUE(tray->signalsOfItems().contains(signal)) << signal.toStdString();
}

TEST(NotifierContent, NamesAnIconThatIsInstalledAndHasNeitherColourNorProgress)
{
    const QString before = QGuiApplication::desktopFileName();
    QGuiApplication::setDesktopFileName(u"org.example.Program"_s);
    const QTemporaryDir folder;
    const QDir share(folder.path());
    ASSERT_TRUE(share.mkpath(u"icons/hicolor/symbolic/apps"_s));
    QFile icon(share.filePath(u"icons/hicolor/symbolic/apps/org.example.Program.clock-symbolic.svg"_s));
    ASSERT_TRUE(icon.open(QIODevice::WriteOnly));

    const auto name = [&share](const SymbolImage& image) {
        return notifierContent({.title = {}, .image = image}, share).iconName;
    };
    EXPECT_EQ(name({.name = u"clock"_s, .paletteColor = {}}), u"org.example.Program.clock-symbolic"_s);
    EXPECT_EQ(name({.name = u"clock"_s, .paletteColor = {}, .percent = 5}), QString());
    EXPECT_EQ(name({.name = u"clock"_s, .paletteColor = SymbolColor::SystemOrange}), QString());
    EXPECT_EQ(name({.name = u"other"_s, .paletteColor = {}}), QString());
    QGuiApplication::setDesktopFileName(before);
}

TEST_F(StatusItemTest, AHostDrawsTheMenuOrHasTheItemOpenItsOwn)
{
    const auto tray = statusNotifierTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*tray));
    ASSERT_EQ(tray->menu().size(), 3);
    tray->menuEvent(tray->menu()[0].id, u"clicked"_s);
    EXPECT_TRUE(probe_->becomes(u"chosen"_s, u"Back up now"_s));
    for (const auto& method : {u"Activate"_s, u"ContextMenu"_s}) {
        EXPECT_EQ(tray->callAtPlace(method), QString());
        EXPECT_TRUE(menuIsOpen(true));
        display_.pressKey(u"Escape"_s);
        ASSERT_TRUE(menuIsOpen(false));
    }
    EXPECT_TRUE(alertComesBack([&] { tray->callAtPlace(u"Activate"_s); }));
}

TEST_F(StatusItemTest, GoesIntoAnXEmbedTray)
{
    const XEmbedTray tray(display_);
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(tray));
    EXPECT_FALSE(probe_->place(u"bar"_s));
    clickIcon();
    EXPECT_TRUE(menuIsOpen(true));
    clickIcon();
    EXPECT_TRUE(menuIsOpen(false)) << "nothing of the menu lies over the icon";
    EXPECT_EQ(probe_->state(u"chosen"_s), u""_s);
    EXPECT_TRUE(alertComesBack([this] { clickIcon(); }));
}

TEST_F(StatusItemTest, TheBarGivesWayToATrayOfEitherKindAndComesBack)
{
    start(u"auto"_s);
    ASSERT_TRUE(barIsUp(true));
    auto tray = statusNotifierTray(false);
    tray->setHost(true);
    ASSERT_TRUE(itemComes(*tray));
    EXPECT_TRUE(barIsUp(false));
    tray->setHost(false);
    EXPECT_TRUE(barIsUp(true)) << "a tray without a host shows nothing";
    tray.reset();
    clickInBar();
    EXPECT_TRUE(menuIsOpen(true)) << "the menu that the tray showed works in the bar";
    display_.pressKey(u"Escape"_s);
    ASSERT_TRUE(menuIsOpen(false));
    XEmbedTray panel(display_);
    ASSERT_TRUE(itemComes(panel));
    EXPECT_TRUE(barIsUp(false));
    panel.takeDown();
    EXPECT_TRUE(barIsUp(true));
}

TEST_F(StatusItemTest, MovesBetweenTraysOfBothKindsAndIsNowhereTwice)
{
    auto host = statusNotifierTray();
    start(u"auto"_s);
    ASSERT_TRUE(itemComes(*host));
    const XEmbedTray panel(display_);
    host.reset();
    ASSERT_TRUE(itemComes(panel));
    EXPECT_TRUE(barIsUp(false));
    host = statusNotifierTray();
    ASSERT_TRUE(itemComes(*host));
    EXPECT_TRUE(runUntil([&] { return !panel.holds(u"desktop_probe"_s); }));
    EXPECT_EQ(host->items().size(), 1);
}

TEST_F(StatusItemTest, StaysWhereItIsToldOrWaitsForATrayWhereTheBarIsUnwanted)
{
    start(u"tray"_s);
    EXPECT_FALSE(probe_->place(u"bar"_s));
    const auto tray = statusNotifierTray();
    EXPECT_TRUE(itemComes(*tray));
    EXPECT_FALSE(probe_->place(u"bar"_s));
    start(u"bar"_s);
    EXPECT_TRUE(barIsUp(true));
    EXPECT_TRUE(runUntil([&] { return tray->items().isEmpty(); }));
}

TEST_F(StatusItemTest, ClicksOpenAndCloseTheMenuUnderTheBarWhichFollowsTheColourScheme)
{
    FakeSettingsPortal portal(connection(), FakeSettingsPortal::dark);
    start(u"bar"_s);
    ASSERT_TRUE(barIsUp(true));
    clickInBar();
    ASSERT_TRUE(menuIsOpen(true));
    clickInBar();
    EXPECT_TRUE(menuIsOpen(false)) << "the click that closes the menu does not open it again";
    clickInBar();
    ASSERT_TRUE(menuIsOpen(true));
    for (const auto& key : {u"Down"_s, u"Return"_s})
        display_.pressKey(key);
    EXPECT_TRUE(menuIsOpen(false));
    EXPECT_EQ(probe_->state(u"chosen"_s), u"Back up now"_s);
    EXPECT_TRUE(probe_->becomes(u"isDark"_s, true));
    portal.announce("color-scheme", FakeSettingsPortal::light);
    EXPECT_TRUE(probe_->becomes(u"isDark"_s, false));
}

TEST_F(StatusItemTest, TheBarKeepsOtherWindowsOffItsStrip)
{
    const XEmbedTray panel(display_);
    const auto workAreaBegins = [this](const auto& top) {
        const QString area = u"_NET_WORKAREA(CARDINAL) = 0, %1, 1280, "_s;
        return runUntil([&] {
            return display_.ask(u"xprop"_s, {u"-root"_s, u"_NET_WORKAREA"_s}).startsWith(area.arg(top()));
        });
    };
    ASSERT_TRUE(workAreaBegins([] { return 0; })) << "nobody's strip";
    constexpr int scale = 2;
    start(u"bar"_s, {u"QT_SCALE_FACTOR=2"_s});
    ASSERT_TRUE(barIsUp(true));
    EXPECT_TRUE(workAreaBegins([&] { return (probe_->place(u"bar"_s)->bottom() + 1) * scale; }));
    EXPECT_EQ(probe_->place(u"bar"_s)->top(), 0) << "its own strip does not push the bar down";
    EXPECT_TRUE(alertComesBack([&] { clickInBar(scale); }));
}

TEST(StatusItemOnWayland, IsASmallWindowWithATitleUntilThereIsATray)
{
    const PrivateBus bus;
    const WaylandCompositor compositor;
    Probe probe(u"auto"_s, compositor.variables() + QStringList{bus.variable()});
    const auto width = [&] { return probe.place(u"bar"_s).value_or(QRect()).width(); };
    ASSERT_TRUE(runUntil([&] { return width() > 0; }));
    constexpr int smallWidth = 200;
    EXPECT_LT(width(), smallWidth);
    EXPECT_TRUE(runUntil([&] { return compositor.said(u"set_title\\(\"Quillon\"\\)"_s) > 0; }));
    probe.tell(u"title Next: 1 day, 2 hours and 3 minutes|2"_s);
    EXPECT_TRUE(runUntil([&] { return width() > smallWidth; }));
    probe.tell(u"press"_s);
    EXPECT_TRUE(probe.becomes(u"menuOpen"_s, true));
    probe.tell(u"press"_s);

    // No program can raise a window there: one that waits for an answer is opened anew.
    const auto opened = compositor.said(u"get_toplevel"_s);
    probe.tell(u"alert"_s);
    ASSERT_TRUE(runUntil([&] { return compositor.said(u"get_toplevel"_s) == opened + 1; }));
    probe.tell(u"press"_s);
    EXPECT_TRUE(runUntil([&] { return compositor.said(u"get_toplevel"_s) == opened + 2; }));
    probe.tell(u"answer"_s);
    FakeStatusNotifierTray tray(bus.connect(u"desktop"_s));
    EXPECT_TRUE(runUntil([&] { return tray.items().size() == 1 && width() == 0; }));
    EXPECT_EQ(tray.callAtPlace(u"Activate"_s), u"org.freedesktop.DBus.Error.UnknownMethod"_s)
        << "hosts that are refused open their own menu";
    QDBusConnection::disconnectFromBus(u"desktop"_s);
}

} // namespace
} // namespace quillon
