#include "AppDelegate.h"

#include "ApplicationIdentity.h"
#include "Cirrel.h"
#include "DataHelper.h"
#include "FakePoster.h"
#include "FakeServices.h"
#include "LocalizedString.h"
#include "MemoryDefaults.h"
#include "ScopedEnvironment.h"
#include "SimulatedTimeMachine.h"
#include "StoredAndSent.h"
#include "TMUtil.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString versions(const QString& os, const QString& app)
{
    return u"{\"os\":\"%1\",\"app\":\"%2\"}"_s.arg(os, app);
}

/// The service's answer that holds those versions.
QByteArray answer(const QString& latest)
{
    return QJsonDocument(QJsonObject{{u"result"_s, QJsonObject{{u"type"_s, u"String"_s}, {u"value"_s, latest}}}})
        .toJson();
}

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest()
    {
        defaults.stored[settingskeys::didShowAlertAtFirstLaunch] = true;
        notifications.addObserver(notifications::appUpdateAvailable, &observer, [this](const QVariantMap& userInfo) {
            announced.append(userInfo.value(u"latestAppVersion"_s).toString());
        });
        Cirrel::setAppId(u"id"_s);
        Cirrel::setApiKey(u"key"_s);
        Cirrel::setServer(u"https://example.com"_s);
    }

    void launch()
    {
        delegate = std::make_unique<AppDelegate>(
            AppDelegate::Services{runLoop, defaults, notifications, workspace, alerts, tmutil, u"2.9"_s});
        EXPECT_FALSE(delegate->isRunning());
        delegate->applicationDidFinishLaunching();
        EXPECT_TRUE(delegate->isRunning());
        runLoop.advance(1s);
    }

    QStringList announcedFor(const QString& latest)
    {
        announced.clear();
        delegate->isAppUpdateAvailable(latest);
        return announced;
    }

    ScopedEnvironment system{"QUILLON_SYSTEM_VERSION", "13.6.0"};
    VirtualRunLoop runLoop{Date{24h}};
    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    SimulatedTimeMachine machine{runLoop};
    TMUtilQueue queue{machine, runLoop, u"tmutil"_s};
    TimeMachineSettings settings{machine, runLoop, workspace, alerts};
    TMUtil tmutil{queue, settings};
    FakePoster* network = new FakePoster; // the services' own
    Cirrel::Services services{runLoop, defaults, std::unique_ptr<FormPoster>(network)};
    QObject observer;
    QStringList announced;
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace

TEST_F(AppDelegateTest, AnUpdateIsAnnouncedWhenItIsNewerAndRunsHere)
{
    launch();
    for (const auto& newer : {u"2.10"_s, u"2.9.1"_s, u"10.0"_s, u"2.9b"_s})
        EXPECT_EQ(announcedFor(versions(u"13.0"_s, newer)), QStringList{newer});
    for (const auto& current : {u"2.9"_s, u"2.8.10"_s, u""_s})
        EXPECT_EQ(announcedFor(versions(u"13.0"_s, current)), QStringList{u""_s}) << current.toStdString();
    EXPECT_EQ(announcedFor(versions(u"13.6.0"_s, u"3.0"_s)), QStringList{u"3.0"_s});
    for (const auto& nothing : {versions(u"13.6.1"_s, u"3.0"_s), u""_s, u"2.0"_s, u"[]"_s, u"{\"os\":\"13.0\"}"_s,
                                u"{\"app\":\"2.0\"}"_s, u"{\"os\":\"13.0\",\"app\":null}"_s})
        EXPECT_EQ(announcedFor(nothing), QStringList()) << nothing.toStdString();
}

TEST_F(AppDelegateTest, TheServiceIsAskedAtLaunchOnWakeAndDailyButEveryTwelveHoursAtMost)
{
    const QString cached = u"Cirrel_Config_LatestAppVersion"_s;
    launch();
    EXPECT_EQ(network->last.fields.value(u"parameter"_s), u"LatestAppVersion"_s);
    network->answer(answer(versions(u"13.0"_s, u"3.0"_s)));
    runLoop.advance(12h - 1s);
    workspace.wake();
    EXPECT_EQ(network->posted, 1);
    EXPECT_EQ(announced, (QStringList{u"3.0"_s, u"3.0"_s})) << "between, the cache is announced";
    defaults.stored.remove(cached);
    workspace.wake();
    EXPECT_EQ(announced.last(), u""_s) << "nothing is known to be newer";
    runLoop.advance(1s);
    workspace.wake();
    EXPECT_EQ(network->posted, 2);
    network->fail();
    EXPECT_EQ(announced.size(), 3) << "failures are silent, and nothing is announced for them";
    runLoop.advance(24h - 1s);
    EXPECT_EQ(network->posted, 2);
    runLoop.advance(24h + 1s);
    EXPECT_EQ(network->posted, 4) << "a day after the latest of them, and each day from then on";
}

TEST_F(AppDelegateTest, TheFirstLaunchSaysOnceWhereBackupsGoAndLeadsToTheSettingsWhereThatIsNowhere)
{
    for (const bool hasDisk : {true, false}) {
        machine.destinations = {};
        if (hasDisk)
            machine.destinations = {{u"A"_s, u"Studio Disk"_s}};
        defaults.stored.clear();
        launch();
        ASSERT_EQ(alerts.presented.size(), 1U);
        const auto [request, answered] = std::exchange(alerts.presented, {}).front();
        EXPECT_EQ(request.messageText, u"Welcome to Quillon"_s);
        const QString advice = hasDisk ? localizedString("setupDisksMessage").arg(u"Studio Disk"_s)
                                       : localizedString("setupNoDiskMessage");
        EXPECT_EQ(request.informativeText, localizedString("firstStartInfoAlertMessage").arg(advice, u"Quillon"_s));
        EXPECT_EQ(request.buttons, (QStringList{u"Close"_s, u"Help"_s}));
        EXPECT_EQ(request.escapeButton, 0);
        EXPECT_FALSE(defaults.boolean(settingskeys::didShowAlertAtFirstLaunch)) << "not before it is answered";
        answered(hasDisk ? alertSecondButtonReturn : alertFirstButtonReturn);
        EXPECT_TRUE(defaults.boolean(settingskeys::didShowAlertAtFirstLaunch));
        EXPECT_EQ(std::exchange(workspace.opened, {}),
                  QList<QUrl>{hasDisk ? makersite::page(u"/quillon/manual/"_s) : TimeMachineSettings::address()});
        launch();
        EXPECT_TRUE(alerts.presented.empty());
    }
}

} // namespace quillon
