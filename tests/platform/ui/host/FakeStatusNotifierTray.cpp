#include "FakeStatusNotifierTray.h"

#include "EventLoop.h"

#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>

#include <stdexcept>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto path = "/StatusNotifierWatcher"_L1;
constexpr auto itemPath = "/StatusNotifierItem"_L1;
constexpr auto itemInterface = "org.kde.StatusNotifierItem"_L1;

} // namespace

FakeStatusNotifierTray::FakeStatusNotifierTray(const QDBusConnection& bus, bool withHost)
    : bus_(bus)
    , host_(withHost)
{
    itemWatcher_.setConnection(bus_);
    itemWatcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&itemWatcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString& item) { items_.removeAll(item); });
    registerMenuTypes();
    registerNotifierTypes();
    if (!bus_.registerObject(path, this, QDBusConnection::ExportAllContents) || !bus_.registerService(service))
        throw std::runtime_error("the bus takes no tray");
}

FakeStatusNotifierTray::~FakeStatusNotifierTray()
{
    bus_.unregisterService(service);
    bus_.unregisterObject(path);
}

void FakeStatusNotifierTray::setHost(bool present)
{
    host_ = present;
    if (present)
        Q_EMIT StatusNotifierHostRegistered();
    else
        Q_EMIT StatusNotifierHostUnregistered();
}

void FakeStatusNotifierTray::RegisterStatusNotifierItem(const QString& item)
{
    if (items_.contains(item))
        return;
    itemWatcher_.addWatchedService(item);
    items_.append(item);
    bus_.connect(item, QString(), itemInterface, QString(), this, SLOT(noteSignal(QDBusMessage)));
}

QDBusMessage FakeStatusNotifierTray::call(const QString& object, const QString& interface, const QString& method,
                                          const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(items_.value(0), object, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall answer = bus_.asyncCall(message);
    // The event loop goes on: the program may need an answer of ours first.
    if (!runUntil([&answer] { return answer.isFinished(); }))
        throw std::runtime_error("the item does not answer");
    return answer.reply();
}

QVariant FakeStatusNotifierTray::property(const QString& name)
{
    const auto answer = call(itemPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {QString(itemInterface), name});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QDBusMessage FakeStatusNotifierTray::callMenu(const QString& method, const QVariantList& arguments)
{
    const QString menuPath = property(u"Menu"_s).value<QDBusObjectPath>().path();
    return call(menuPath, u"com.canonical.dbusmenu"_s, method, arguments);
}

QList<MenuLayout> FakeStatusNotifierTray::menu()
{
    return qdbus_cast<MenuLayout>(callMenu(u"GetLayout"_s, {0, -1, QStringList()}).arguments().value(1)).children;
}

void FakeStatusNotifierTray::menuEvent(int id, const QString& event)
{
    callMenu(u"Event"_s, {id, event, QVariant::fromValue(QDBusVariant(QString())), QVariant::fromValue(0U)});
}

QString FakeStatusNotifierTray::callAtPlace(const QString& method)
{
    return call(itemPath, itemInterface, method, {0, 0}).errorName();
}

} // namespace quillon
