#include "FakeStatusNotifierTray.h"

#include "Waiting.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>

#include <stdexcept>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto path = "/StatusNotifierWatcher"_L1;

/// Two underscores are displayed as one, a single one is not displayed (com.canonical.dbusmenu, property "label").
QString displayed(const QString& label)
{
    QString text;
    bool marked = false;
    for (const QChar c : label) {
        marked = c == u'_' && !marked;
        if (!marked)
            text += c;
    }
    return text;
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

void FakeStatusNotifierTray::RegisterStatusNotifierItem(const QString& /*service*/)
{
    const QString item = message().service();
    itemWatcher_.addWatchedService(item);
    items_.append(item);
    Q_EMIT StatusNotifierItemRegistered(item);
}

QVariantList FakeStatusNotifierTray::call(const QString& item, const QString& object, const QString& interface,
                                          const QString& method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(item, object, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall answer = bus_.asyncCall(message);
    // The event loop goes on: the program may need an answer of ours first.
    if (!eventually([&answer] { return answer.isFinished(); }) || answer.isError())
        throw std::runtime_error("the item does not answer: " + answer.error().message().toStdString());
    return answer.reply().arguments();
}

QDBusArgument FakeStatusNotifierTray::itemProperty(const QString& item, const QString& name)
{
    const auto answer = call(item, u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                             {u"org.kde.StatusNotifierItem"_s, name});
    return answer.value(0).value<QDBusVariant>().variant().value<QDBusArgument>();
}

QString FakeStatusNotifierTray::toolTip(const QString& item)
{
    // (icon name, icons, title, text)
    const QDBusArgument toolTip = itemProperty(item, u"ToolTip"_s);
    QString iconName;
    QString title;
    QString text;
    toolTip.beginStructure();
    toolTip >> iconName;
    toolTip.asVariant(); // the icons
    toolTip >> title >> text;
    toolTip.endStructure();
    return title;
}

QByteArray FakeStatusNotifierTray::iconData(const QString& item)
{
    // An array of (width, height, pixels)
    const QDBusArgument icons = itemProperty(item, u"IconPixmap"_s);
    QByteArray data;
    icons.beginArray();
    while (!icons.atEnd()) {
        int width = 0;
        int height = 0;
        QByteArray pixels;
        icons.beginStructure();
        icons >> width >> height >> pixels;
        icons.endStructure();
        data.append(pixels);
    }
    icons.endArray();
    return data;
}

QStringList FakeStatusNotifierTray::menuLabels(const QString& item)
{
    // The layout is (revision, (id, properties, children)), every child the same kind of triple in a variant.
    const auto answer =
        call(item, u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"GetLayout"_s, {0, 1, QStringList{u"label"_s}});
    const auto layout = answer.value(1).value<QDBusArgument>();
    QStringList labels;
    int identifier = 0;
    QVariantMap properties;
    layout.beginStructure();
    layout >> identifier >> properties;
    layout.beginArray();
    while (!layout.atEnd()) {
        QDBusVariant child;
        layout >> child;
        const auto fields = child.variant().value<QDBusArgument>();
        fields.beginStructure();
        fields >> identifier >> properties;
        fields.asVariant(); // no grandchildren were asked for
        fields.endStructure();
        labels.append(displayed(properties.value(u"label"_s).toString()));
    }
    layout.endArray();
    layout.endStructure();
    return labels;
}

void FakeStatusNotifierTray::activate(const QString& item)
{
    call(item, u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Activate"_s, {0, 0});
}

} // namespace quillon
