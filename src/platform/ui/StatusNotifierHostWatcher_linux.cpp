#include "StatusNotifierHostWatcher_linux.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Names of the protocol: https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/
constexpr auto watcherService = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto watcherPath = "/StatusNotifierWatcher"_L1;

// A watcher that hangs must not keep the item hidden.
constexpr int answerTimeoutMs = 1000;

} // namespace

StatusNotifierHostWatcher::StatusNotifierHostWatcher(const QDBusConnection& bus)
    : bus_(bus)
    , serviceWatcher_(watcherService, bus_, QDBusServiceWatcher::WatchForOwnerChange)
    , known_(!bus_.isConnected())
{
    if (known_)
        return;
    connect(&serviceWatcher_, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierHostWatcher::ask);
    connect(&serviceWatcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        question_.reset();
        settle(false);
    });
    for (const auto signal : {"StatusNotifierHostRegistered"_L1, "StatusNotifierHostUnregistered"_L1})
        bus_.connect(watcherService, watcherPath, watcherService, signal, this, SLOT(ask()));
    ask();
}

StatusNotifierHostWatcher::~StatusNotifierHostWatcher() = default;

void StatusNotifierHostWatcher::ask()
{
    auto message =
        QDBusMessage::createMethodCall(watcherService, watcherPath, "org.freedesktop.DBus.Properties"_L1, "Get"_L1);
    message.setAutoStartService(false);
    message.setArguments({QString(watcherService), u"IsStatusNotifierHostRegistered"_s});
    // A newer question replaces one under way, so that answers cannot overtake each other.
    question_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(message, answerTimeoutMs));
    connect(question_.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const QDBusPendingReply<QDBusVariant> reply = *question_;
        question_.release()->deleteLater();
        settle(reply.isValid() && reply.value().variant().toBool());
    });
}

void StatusNotifierHostWatcher::settle(bool present)
{
    const bool news = !known_ || present_ != present;
    known_ = true;
    present_ = present;
    if (news)
        Q_EMIT changed();
}

} // namespace quillon
