#include "ColorScheme_linux.h"
#include "EventLoop.h"
#include "PrivateBus.h"
#include "ScopedEnvironment.h"
#include "host/FakeSettingsPortal.h"

#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <optional>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using enum ColorSchemePreference;

class ColorSchemeTest : public testing::Test {
protected:
    QDBusConnection connection(const QString& side) { return bus_.connect(u"color scheme "_s + side); }
    void TearDown() override
    {
        QDBusConnection::disconnectFromBus(u"color scheme portal"_s);
        QDBusConnection::disconnectFromBus(u"color scheme reader"_s);
    }

private:
    PrivateBus bus_;
};

TEST_F(ColorSchemeTest, IsReadFromAndFollowsThePortal)
{
    std::optional<FakeSettingsPortal> portal;
    portal.emplace(connection(u"portal"_s), FakeSettingsPortal::dark, true);
    ColorScheme scheme(connection(u"reader"_s));
    EXPECT_TRUE(runUntil([&] { return scheme.preference() == Dark; }));

    portal->announce("contrast", 0);
    portal->announce("color-scheme", FakeSettingsPortal::light);
    EXPECT_TRUE(runUntil([&] { return scheme.preference() != Dark; }));
    EXPECT_EQ(scheme.preference(), Light);
    portal.reset();
    portal.emplace(connection(u"portal"_s), FakeSettingsPortal::dark);
    EXPECT_TRUE(runUntil([&] { return scheme.preference() == Dark; })) << "a portal that comes later is asked";
}

TEST_F(ColorSchemeTest, IsGnomesSettingUntilAPortalSpeaks)
{
    const QTemporaryDir programs;
    QFile gsettings(programs.filePath(u"gsettings"_s));
    ASSERT_TRUE(gsettings.open(QIODevice::WriteOnly));
    gsettings.write(
        "#!/bin/sh\n[ \"$*\" = 'get org.gnome.desktop.interface color-scheme' ] && echo \"'prefer-dark'\"\n");
    gsettings.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    gsettings.close();
    const ScopedEnvironment path("PATH", QFile::encodeName(programs.path()));
    const ScopedEnvironment desktop("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    ColorScheme scheme(connection(u"reader"_s));
    EXPECT_FALSE(scheme.isKnown());
    EXPECT_TRUE(runUntil([&] { return scheme.isKnown(); }));
    EXPECT_EQ(scheme.preference(), Dark);
    const FakeSettingsPortal portal(connection(u"portal"_s), FakeSettingsPortal::light);
    EXPECT_TRUE(runUntil([&] { return scheme.preference() == Light; }));
}

TEST(SchemeStyle, ShowsTheKeyboardInAnEmptyList)
{
    SchemeStyle style;
    QListWidget list;
    list.setStyle(&style);
    list.show();
    list.activateWindow();
    list.setFocus();
    ASSERT_TRUE(runUntil([&] { return list.hasFocus(); }));
    const auto picture = [&list](bool byKeys) {
        list.setAttribute(Qt::WA_KeyboardFocusChange, byKeys);
        return list.grab().toImage();
    };
    EXPECT_NE(picture(true), picture(false));
}

} // namespace
} // namespace quillon
