#include "ColorScheme_linux.h"
#include "PrivateBus.h"
#include "ScopedEnvironment.h"
#include "Waiting.h"
#include "host/FakeSettingsPortal.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <optional>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using enum ColorSchemePreference;
using Version = FakeSettingsPortal::Version;

class ColorSchemeTest : public testing::TestWithParam<Version> {
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

TEST_P(ColorSchemeTest, IsReadFromAndFollowsThePortal)
{
    std::optional<FakeSettingsPortal> portal;
    portal.emplace(connection(u"portal"_s), FakeSettingsPortal::dark, GetParam());
    ColorScheme scheme(connection(u"reader"_s));
    EXPECT_TRUE(eventually([&] { return scheme.preference() == Dark; }));

    portal->announce(u"org.freedesktop.appearance"_s, u"contrast"_s, 0);
    portal->announce(u"org.gnome.desktop.interface"_s, u"color-scheme"_s, 2);
    portal->setColorScheme(FakeSettingsPortal::light);
    EXPECT_TRUE(eventually([&] { return scheme.preference() != Dark; }));
    EXPECT_EQ(scheme.preference(), Light);

    constexpr uint unheardOf = 7;
    portal->setColorScheme(unheardOf);
    EXPECT_TRUE(eventually([&] { return scheme.preference() == None; }));

    portal.reset();
    portal.emplace(connection(u"portal"_s), FakeSettingsPortal::dark, GetParam());
    EXPECT_TRUE(eventually([&] { return scheme.preference() == Dark; })) << "a portal that comes later is asked";
}

TEST_P(ColorSchemeTest, IsGnomesSettingUntilAPortalSpeaks)
{
    const QTemporaryDir programs;
    QFile gsettings(programs.filePath(u"gsettings"_s));
    ASSERT_TRUE(gsettings.open(QIODevice::WriteOnly));
    gsettings.write(
        "#!/bin/sh\n[ \"$*\" = 'get org.gnome.desktop.interface color-scheme' ] && echo \"'prefer-dark'\"\n");
    gsettings.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    gsettings.close();
    const ScopedEnvironment path("PATH", QFile::encodeName(programs.path()));
    {
        const ScopedEnvironment desktop("XDG_CURRENT_DESKTOP", "sway");
        EXPECT_TRUE(ColorScheme(connection(u"reader"_s)).isKnown());
    }
    const ScopedEnvironment desktop("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    ColorScheme scheme(connection(u"reader"_s));
    EXPECT_FALSE(scheme.isKnown());
    EXPECT_TRUE(eventually([&] { return scheme.isKnown(); }));
    EXPECT_EQ(scheme.preference(), Dark);
    const FakeSettingsPortal portal(connection(u"portal"_s), FakeSettingsPortal::light, GetParam());
    EXPECT_TRUE(eventually([&] { return scheme.preference() == Light; }));
}

INSTANTIATE_TEST_SUITE_P(Portals, ColorSchemeTest, testing::Values(Version::Current, Version::Old),
                         [](const auto& test) { return test.param == Version::Old ? "Old" : "Current"; });

} // namespace
} // namespace quillon
