#include "FakeStatusNotifierTray.h"

#include "Waiting.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>
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

/// The name of the error that an answer is, if it is one.
QString refusal(const QDBusMessage& answer)
{
    return answer.type() == QDBusMessage::ErrorMessage ? answer.errorName() : QString();
}

void expectSignature(const QDBusMessage& answer, const QString& signature)
{
    if (answer.signature() != signature)
        throw std::runtime_error("the item answers with " + answer.signature().toStdString() + ' ' +
                                 answer.errorMessage().toStdString());
}

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
    const bool isExported = bus_.registerObject(path, this, QDBusConnection::ExportAllContents);
    const auto queued = bus_.interface()->registerService(service, QDBusConnectionInterface::QueueService);
    if (!isExported || queued.value() == QDBusConnectionInterface::ServiceNotRegistered)
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
    for (const auto& interface : {QString(itemInterface), u"com.canonical.dbusmenu"_s})
        bus_.connect(item, QString(), interface, QString(), this, SLOT(noteSignal(QDBusMessage)));
    Q_EMIT StatusNotifierItemRegistered(item);
    if (!bus_.interface()->isServiceRegistered(item)) // it has gone while its request was on the way
        items_.removeAll(item);
}

QDBusMessage FakeStatusNotifierTray::call(const QString& item, const QString& object, const QString& interface,
                                          const QString& method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(item, object, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall answer = bus_.asyncCall(message);
    // The event loop goes on: the program may need an answer of ours first.
    if (!eventually([&answer] { return answer.isFinished(); }))
        throw std::runtime_error("the item does not answer");
    return answer.reply();
}

QVariant FakeStatusNotifierTray::property(const QString& item, const QString& name, const QString& signature)
{
    const auto answer =
        call(item, itemPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {QString(itemInterface), name});
    expectSignature(answer, u"v"_s);
    const QVariant value = answer.arguments().value(0).value<QDBusVariant>().variant();
    const bool isStructure = value.metaType() == QMetaType::fromType<QDBusArgument>();
    const QString found = isStructure ? value.value<QDBusArgument>().currentSignature()
                                      : QString::fromLatin1(QDBusMetaType::typeToSignature(value.metaType()));
    if (found != signature)
        throw std::runtime_error(name.toStdString() + " is a " + found.toStdString());
    return value;
}

NotifierToolTip FakeStatusNotifierTray::toolTip(const QString& item)
{
    return qdbus_cast<NotifierToolTip>(property(item, u"ToolTip"_s, u"(sa(iiay)ss)"_s));
}

NotifierPixmaps FakeStatusNotifierTray::pixmaps(const QString& item, const QString& name)
{
    return qdbus_cast<NotifierPixmaps>(property(item, name, u"a(iiay)"_s));
}

QDBusMessage FakeStatusNotifierTray::callMenu(const QString& item, const QString& method, const QVariantList& arguments)
{
    const QString menuPath = property(item, u"Menu"_s, u"o"_s).value<QDBusObjectPath>().path();
    return call(item, menuPath, u"com.canonical.dbusmenu"_s, method, arguments);
}

MenuLayout FakeStatusNotifierTray::menu(const QString& item)
{
    const auto answer = callMenu(item, u"GetLayout"_s, {0, -1, QStringList()});
    expectSignature(answer, u"u(ia{sv}av)"_s);
    return qdbus_cast<MenuLayout>(answer.arguments().value(1));
}

QStringList FakeStatusNotifierTray::menuLabels(const QString& item)
{
    QStringList labels;
    const auto items = menu(item).children;
    for (const MenuLayout& shown : items)
        labels.append(shown.properties.value(u"label"_s).toString());
    return labels;
}

QString FakeStatusNotifierTray::menuEvent(const QString& item, int id, const QString& event)
{
    return refusal(
        callMenu(item, u"Event"_s, {id, event, QVariant::fromValue(QDBusVariant(QString())), QVariant::fromValue(0U)}));
}

bool FakeStatusNotifierTray::aboutToShowMenu(const QString& item, int id)
{
    const auto answer = callMenu(item, u"AboutToShow"_s, {id});
    expectSignature(answer, u"b"_s);
    return answer.arguments().constFirst().toBool();
}

QString FakeStatusNotifierTray::callAtPlace(const QString& item, const QString& method)
{
    return refusal(call(item, itemPath, itemInterface, method, {0, 0}));
}

} // namespace quillon
