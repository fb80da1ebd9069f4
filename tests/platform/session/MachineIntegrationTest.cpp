#include "EventLoop.h"
#include "PlayedServices.h"
#include "Power_linux.h"
#include "Services.h"
#include "SessionTestSupport.h"
#include "UserNotifications_linux.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class PlayedPower final : public PlayedService {
public:
    explicit PlayedPower(const PrivateBus& bus)
        : PlayedService(bus, u"upower"_s, u"org.freedesktop.UPower"_s, u"/org/freedesktop/UPower"_s)
    {
    }

    void unplug() { play(u"UpdateProperties"_s, {u"org.freedesktop.UPower"_s, QVariantMap{{u"OnBattery"_s, true}}}); }
    void setCharge(double percentage)
    {
        constexpr uint battery = 2, discharging = 2;
        play(u"SetupDisplayDevice"_s,
             {battery, discharging, percentage, 10.0, 20.0, 5.0, 3600LL, 0LL, true, u"b"_s, 1u});
    }
};

class PlayedDesktop final : public PlayedService {
public:
    PlayedDesktop(const PrivateBus& bus, const QString& capabilities)
        : PlayedService(bus, u"notification_daemon"_s, u"org.freedesktop.Notifications"_s,
                        u"/org/freedesktop/Notifications"_s,
                        {u"--parameters"_s, u"{\"capabilities\": \"%1\"}"_s.arg(capabilities)})
    {
    }

    /// The arguments of every call of that method.
    QList<QVariantList> calls(const QString& method)
    {
        QList<QVariantList> result;
        const auto reply = play(u"GetMethodCalls"_s, {method});
        const auto list = reply.arguments().value(0).value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            qulonglong time = 0;
            QVariantList arguments;
            list.beginStructure();
            list >> time >> arguments;
            list.endStructure();
            result << arguments;
        }
        list.endArray();
        return result;
    }
    bool hasTaken(qsizetype count, const QString& method = u"Notify"_s)
    {
        return runUntil([&] { return calls(method).size() >= count; });
    }
};

class MachineIntegrationTest : public testing::Test {
protected:
    void TearDown() override { QDBusConnection::disconnectFromBus(u"client"_s); }

    PrivateBus bus;
    QDBusConnection client = bus.connect(u"client"_s); ///< the program's own
};

TEST_F(MachineIntegrationTest, PowerIsWhatUPowerTellsAndMainsWhereNobodyTellsOrWantsToKnow)
{
    UPowerSupply power(client);
    std::optional<PlayedPower> upower(std::in_place, bus);
    const PowerState unplugged{.onMains = false, .charge = 41};
    upower->setCharge(41.4);
    power.setWatching(true);
    EXPECT_TRUE(runUntil([&] { return power.state() == PowerState{.onMains = true, .charge = 41}; }));
    upower->unplug();
    EXPECT_TRUE(runUntil([&] { return power.state() == unplugged; }));
    const QSignalSpy changes(&power, &PowerSupply::changed);
    upower.reset();
    EXPECT_TRUE(runUntil([&] { return power.state() == PowerState(); }));
    EXPECT_EQ(changes.count(), 1);

    upower.emplace(bus);
    upower->setCharge(41.4);
    upower->unplug();
    EXPECT_TRUE(runUntil([&] { return power.state() == unplugged; }));
    power.setWatching(false);
    EXPECT_EQ(power.state(), PowerState());
    power.setWatching(true);
    EXPECT_TRUE(runUntil([&] { return power.state() == unplugged; }));
}

TEST_F(MachineIntegrationTest, SleepIsHeldOffUntilItIsLetGoAlsoByALogindThatRestarts)
{
    std::optional<LogindAwakeLock> lock(std::in_place, client);
    const QStringList held{u"sleep block"_s};
    lock->hold(u"A backup runs"_s);
    for (int i = 0; i < 2; ++i) {
        PlayedLogind logind(bus);
        EXPECT_TRUE(runUntil([&] { return logind.locks() == held; }));
    }
    PlayedLogind logind(bus);
    ASSERT_TRUE(runUntil([&] { return logind.locks() == held; }));
    lock->release();
    EXPECT_TRUE(runUntil([&] { return logind.locks().isEmpty(); }));
    lock->hold(u"Another one"_s);
    lock->hold(u"Another one"_s);
    ASSERT_TRUE(runUntil([&] { return logind.locks() == held; }));
    lock.reset();
    EXPECT_TRUE(runUntil([&] { return logind.locks().isEmpty(); }));
}

TEST_F(MachineIntegrationTest, AWordReplacesTheEarlierOneOfItsKindAndIsTakenAwayEvenBeforeItIsShown)
{
    PlayedDesktop desktop(bus, u"actions body-markup"_s);
    DesktopNotifications notifications(client, {u"Program"_s, u"com.example.program"_s});
    QStringList chosen;
    QObject::connect(&notifications, &UserNotifications::chosen,
                     [&](const QString& identifier, const QString& action) { chosen << identifier + u'/' + action; });
    UserNotification word{u"failed"_s, u"Title <1>"_s, u"a < b & c"_s, true, {{u"again"_s, u"Try Again"_s}}};
    notifications.post(word);
    word.text = u"later"_s;
    word.lasts = std::chrono::minutes(1);
    notifications.post(word); // ahead of the desktop's first answer
    ASSERT_TRUE(desktop.hasTaken(2));
    const auto taken = desktop.calls(u"Notify"_s);
    EXPECT_EQ(taken[0].value(1).toUInt(), 0u);
    EXPECT_EQ(taken[0].value(3), u"Title <1>"_s);
    EXPECT_EQ(taken[0].value(4), u"a &lt; b &amp; c"_s);
    EXPECT_EQ(taken[1].value(1).toUInt(), 1u) << "in the place of the first";
    EXPECT_EQ(taken[1].value(4), u"later"_s);
    EXPECT_EQ(taken[0].value(7).toInt(), -1) << "as the desktop thinks fit";
    EXPECT_EQ(taken[1].value(7).toInt(), 60'000);

    runUntil([&] { // the number is known a moment after the call
        desktop.emitSignal(u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s, u"us"_s, {1u, u"again"_s});
        return !chosen.isEmpty();
    });
    EXPECT_EQ(chosen.value(0), u"failed/again"_s);
    notifications.withdraw(u"failed"_s);
    word.identifier = u"other"_s;
    notifications.post(word);
    notifications.withdraw(u"other"_s);
    ASSERT_TRUE(desktop.hasTaken(2, u"CloseNotification"_s));
    EXPECT_EQ(desktop.calls(u"CloseNotification"_s)[1].value(0).toUInt(), 2u);
}

TEST_F(MachineIntegrationTest, ADiskThatAppearsIsNoticed)
{
    const auto watch = makeMountWatch();
    watch->setWatching(true);
    const QSignalSpy changes(watch.get(), &MountWatch::changed);
    const QTemporaryDir folder;
    if (run(u"mount"_s, {u"-t"_s, u"tmpfs"_s, u"none"_s, folder.path()}).status != 0)
        GTEST_SKIP() << "mounting is not allowed here";
    EXPECT_TRUE(runUntil([&] { return changes.count() > 0; }));
    EXPECT_EQ(run(u"umount"_s, {folder.path()}).status, 0);
}

} // namespace
} // namespace quillon
