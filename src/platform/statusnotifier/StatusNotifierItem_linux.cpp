#include "StatusNotifierItem_linux.h"

#include "TrayProtocols_linux.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QImage>
#include <QtEndian>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip)
{
    argument.beginStructure();
    argument << QString() << NotifierPixmaps() << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip)
{
    QString iconName;
    NotifierPixmaps icon;
    argument.beginStructure();
    argument >> iconName >> icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

void registerNotifierTypes()
{
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<NotifierPixmaps>();
    qDBusRegisterMetaType<NotifierToolTip>();
    qRegisterMetaType<NotifierPixmaps>("quillon::NotifierPixmaps");
}

NotifierPixmaps notifierPixmaps(const QIcon& icon)
{
    NotifierPixmaps pixmaps;
    const auto sizes = icon.availableSizes();
    for (const QSize& size : sizes) {
        const QImage image = icon.pixmap(size, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        QByteArray pixels(image.sizeInBytes(), Qt::Uninitialized);
        // Of pixels of four bytes no row has any filling.
        qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / static_cast<qsizetype>(sizeof(quint32)),
                              pixels.data());
        pixmaps.append({image.width(), image.height(), pixels});
    }
    return pixmaps;
}

using namespace trayprotocols;

namespace {

// A watcher that hangs must not keep the item hidden.
constexpr int answerTimeoutMs = 1000;

} // namespace

StatusNotifierHostWatcher::StatusNotifierHostWatcher(const QDBusConnection& bus)
    : bus_(bus)
    , serviceWatcher_(statusNotifierWatcher, bus_, QDBusServiceWatcher::WatchForOwnerChange)
    , known_(!bus_.isConnected())
{
    if (known_)
        return;
    connect(&serviceWatcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*service*/, const QString& /*oldOwner*/, const QString& newOwner) {
                if (!newOwner.isEmpty()) {
                    ask();
                    return;
                }
                question_.reset();
                settle(false);
            });
    for (const auto signal : {"StatusNotifierHostRegistered"_L1, "StatusNotifierHostUnregistered"_L1})
        bus_.connect(statusNotifierWatcher, statusNotifierPath, statusNotifierWatcher, signal, this, SLOT(ask()));
    ask();
}

StatusNotifierHostWatcher::~StatusNotifierHostWatcher() = default;

void StatusNotifierHostWatcher::ask()
{
    // A newer question replaces one under way, so that answers cannot overtake each other.
    question_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(statusNotifierQuestion(), answerTimeoutMs));
    connect(question_.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const bool present = isYes(question_->reply());
        question_.release()->deleteLater();
        settle(present);
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

using namespace trayprotocols;

namespace {

constexpr auto itemPath = "/StatusNotifierItem"_L1; // where watchers look behind a bus name

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& bus, const QString& menuPath,
                                       const QString& iconThemePath)
    : bus_(bus)
    , watchers_(statusNotifierWatcher, bus_, QDBusServiceWatcher::WatchForOwnerChange)
    , menuPath_(menuPath)
    , iconThemePath_(iconThemePath)
{
    registerNotifierTypes();
    bus_.registerObject(itemPath, this, QDBusConnection::ExportScriptableContents);
    // A watcher may also take the place of another one without a gap.
    connect(&watchers_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*service*/, const QString& /*oldOwner*/, const QString& newOwner) {
                if (!newOwner.isEmpty())
                    registerWithWatcher();
            });
    registerWithWatcher();
}

StatusNotifierItem::~StatusNotifierItem()
{
    bus_.unregisterObject(itemPath);
}

void StatusNotifierItem::registerWithWatcher()
{
    auto request = QDBusMessage::createMethodCall(statusNotifierWatcher, statusNotifierPath, statusNotifierWatcher,
                                                  u"RegisterStatusNotifierItem"_s);
    request.setAutoStartService(false);
    request.setArguments({bus_.baseService()});
    bus_.send(request);
}

void StatusNotifierItem::setContent(const NotifierContent& content)
{
    const QString oldTitle = title();
    const NotifierContent old = std::exchange(content_, content);
    if (oldTitle != title())
        Q_EMIT NewTitle();
    const bool newIcon = old.iconName != content.iconName || old.pixmaps != content.pixmaps ||
                         old.iconDescription != content.iconDescription;
    if (newIcon)
        Q_EMIT NewIcon();
    if (old.needsAttention != content.needsAttention || (content.needsAttention && newIcon))
        Q_EMIT NewAttentionIcon();
    if (old.needsAttention != content.needsAttention)
        Q_EMIT NewStatus(status());
    if (old.name != content.name || old.toolTip != content.toolTip)
        Q_EMIT NewToolTip();
    if (old.label != content.label)
        Q_EMIT XAyatanaNewLabel(label(), labelGuide());
}

QString StatusNotifierItem::id() const
{
    return QCoreApplication::applicationName();
}

/// Some hosts read nothing else out.
QString StatusNotifierItem::title() const
{
    return content_.iconDescription.isEmpty() ? content_.name
                                              : u"%1: %2"_s.arg(content_.name, content_.iconDescription);
}

QString StatusNotifierItem::status() const
{
    return content_.needsAttention ? u"NeedsAttention"_s : u"Active"_s;
}

NotifierPixmaps StatusNotifierItem::attentionIconPixmap() const
{
    return content_.needsAttention ? content_.pixmaps : NotifierPixmaps();
}

NotifierToolTip StatusNotifierItem::toolTip() const
{
    // The protocol takes the text for HTML.
    return {content_.name, content_.toolTip.toHtmlEscaped()};
}

void StatusNotifierItem::Activate(int /*x*/, int /*y*/)
{
    // There a menu of ours is a window somewhere on the screen; hosts that are refused open theirs.
    if (QGuiApplication::platformName().startsWith("wayland"_L1))
        sendErrorReply(QDBusError::UnknownMethod, u"the item is a menu"_s);
    else
        Q_EMIT menuRequested();
}

void StatusNotifierItem::ContextMenu(int /*x*/, int /*y*/)
{
    Q_EMIT menuRequested();
}

} // namespace quillon
