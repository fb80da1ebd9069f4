#include "AppDelegate.h"
#include "Cirrel.h"
#include "EventLoop.h"
#include "FakeServices.h"
#include "HttpClient.h"
#include "MemoryDefaults.h"
#include "Notifications.h"
#include "ReferenceServer.h"
#include "ScopedEnvironment.h"
#include "SettingsKeys.h"
#include "SimulatedTimeMachine.h"
#include "TMUtilQueue.h"
#include "TestCertificate.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QJsonObject text(const QString& value)
{
    return {{u"type"_s, u"String"_s}, {u"value"_s, value}};
}

/// The real client, counting what it has reported.
class CountingPoster final : public FormPoster {
public:
    CountingPoster(RunLoop& runLoop, int& reported)
        : client_(runLoop)
        , reported_(reported)
    {
    }

    void post(const FormRequest& request, Completion completion) override
    {
        client_.post(request, [this, completion = std::move(completion)](const HttpResult& result) {
            completion(result);
            ++reported_;
        });
    }

private:
    HttpClient client_;
    int& reported_;
};

/// The program's side of the update check, in front of a real server over HTTPS.
class UpdateCheckIntegrationTest : public testing::Test {
protected:
    UpdateCheckIntegrationTest()
    {
        notifications.addObserver(notifications::appUpdateAvailable, &observer, [this](const QVariantMap& userInfo) {
            announced.append(userInfo.value(u"latestAppVersion"_s).toString());
        });
        defaults.stored[settingskeys::didShowAlertAtFirstLaunch] = true;
        server.setParameter(u"LatestAppVersion"_s, text(u"{\"os\":\"13.0\",\"app\":\"2.10\"}"_s));
    }

    template<typename Condition>
    bool eventually(Condition condition)
    {
        return runUntil([&] {
            runLoop.settle();
            return condition();
        });
    }

    bool isAnnounced(qsizetype count)
    {
        return eventually([&] { return announced.size() >= count; });
    }

    ScopedEnvironment system{"QUILLON_SYSTEM_VERSION", "13.6.0"};
    const TestCertificate certificate{u"localhost"_s};
    const ScopedTrust trust{certificate};
    ReferenceServer server{certificate.file(), u"localhost"_s};
    VirtualRunLoop runLoop{Date{24h}};
    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    int reported = 0;
    Cirrel::Services services{runLoop, defaults, std::make_unique<CountingPoster>(runLoop, reported)};
    QObject observer;
    QStringList announced;
    SimulatedTimeMachine machine{runLoop};
    TMUtilQueue queue{machine, runLoop, u"tmutil"_s};
    AppDelegate delegate{{runLoop, defaults, notifications, workspace, alerts, queue, machine, u"2.9"_s}};
};

} // namespace

TEST_F(UpdateCheckIntegrationTest, AnUpdateIsAnnouncedAndTheServiceCanMove)
{
    ReferenceServer next(certificate.file(), u"localhost"_s);
    next.setParameter(u"LatestAppVersion"_s, text(u"{\"os\":\"13.0\",\"app\":\"3.0\"}"_s));
    server.setParameter(u"ServerUrl"_s, text(next.address()));
    Cirrel::initWithAppId(u"Quillon & Co"_s, u"k=1"_s, server.address());
    delegate.applicationDidFinishLaunching();
    ASSERT_TRUE(isAnnounced(1));
    EXPECT_EQ(announced.last(), u"2.10"_s);
    const auto headers = server.requests().last().toObject().value(u"headers"_s).toObject();
    EXPECT_EQ(headers.value(u"x-application-id"_s), u"Quillon & Co"_s);
    EXPECT_EQ(headers.value(u"x-api-key"_s), u"k=1"_s);

    ASSERT_TRUE(eventually([&] { return Cirrel::getServer() == next.address(); }));
    runLoop.advance(13h);
    workspace.wake();
    ASSERT_TRUE(isAnnounced(2));
    EXPECT_EQ(announced.last(), u"3.0"_s);
}

TEST_F(UpdateCheckIntegrationTest, NoFaultOfTheServerAnnouncesAnythingOrHarmsTheCache)
{
    Cirrel::initWithAppId(u"id"_s, u"key"_s, server.address());
    delegate.retrieveLatestAppVersion();
    ASSERT_TRUE(isAnnounced(1));
    ReferenceServer elsewhere;
    const auto cached = defaults.stored;
    const std::pair<QString, QString> faults[] = {{u"reset"_s, {}},
                                                  {u"half"_s, {}},
                                                  {u"hang"_s, {}},
                                                  {u"drip"_s, {}},
                                                  {u"notUtf8"_s, {}},
                                                  {u"notJson"_s, {}},
                                                  {u"wrongType"_s, {}},
                                                  {u"long"_s, u"0"_s},
                                                  {u"long"_s, QString::number(HttpClient::maximumAnswer + 1)},
                                                  {u"redirect"_s, elsewhere.address()}};
    for (const auto& [fault, detail] : faults) {
        runLoop.advance(12h);
        server.play(fault, detail);
        const auto asked = server.requests().size();
        const int before = reported;
        QVariant value;
        std::optional<Error> error;
        Cirrel::getConfigForParameter(u"LatestAppVersion"_s, 1, u"default"_s,
                                      [&](const QVariant& result, const std::optional<Error>& failure) {
                                          value = result;
                                          error = failure;
                                      });
        delegate.retrieveLatestAppVersion();
        ASSERT_TRUE(eventually([&] { return server.requests().size() >= asked + 2; }));
        if (fault == "hang"_L1 || fault == "drip"_L1)
            runLoop.advance(6s);
        ASSERT_TRUE(eventually([&] { return reported == before + 2; })) << fault.toStdString();
        EXPECT_TRUE(error) << fault.toStdString();
        EXPECT_TRUE(value.toString().contains(u"2.10"_s)) << fault.toStdString();
        EXPECT_EQ(announced.size(), 1) << fault.toStdString();
        EXPECT_EQ(defaults.stored, cached) << fault.toStdString();
    }
    EXPECT_TRUE(elsewhere.requests().isEmpty());

    server.play({});
    delegate.retrieveLatestAppVersion();
    EXPECT_TRUE(isAnnounced(2)) << "and it recovers by itself";
}

} // namespace quillon
