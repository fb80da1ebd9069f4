#include "UserNotifications_linux.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace desktop {

constexpr auto service = "org.freedesktop.Notifications"_L1;
constexpr auto path = "/org/freedesktop/Notifications"_L1;
constexpr auto interface = "org.freedesktop.Notifications"_L1;
constexpr auto clickOnItself = "default"_L1;
enum Urgency : uchar { Normal = 1, Critical = 2 };
constexpr int desktopsOwnTime = -1;

} // namespace desktop

DesktopNotifications::DesktopNotifications(const QDBusConnection& sessionBus, NotificationSender sender)
    : bus_(sessionBus)
    , sender_(std::move(sender))
{
    if (!bus_.isConnected())
        return; // Qt would ask who owns the name, and libdbus ends a program that asks over a lost connection
    bus_.connect(desktop::service, desktop::path, desktop::interface, u"ActionInvoked"_s, this,
                 SLOT(actionInvoked(uint, QString)));
    bus_.connect(desktop::service, desktop::path, desktop::interface, u"NotificationClosed"_s, this,
                 SLOT(notificationClosed(uint, uint)));
}

void DesktopNotifications::post(const UserNotification& notification)
{
    Posted& posted = posted_[notification.identifier];
    posted.isWithdrawn = false;
    if (posted.isAwaited)
        posted.next = notification;
    else
        send(notification);
}

void DesktopNotifications::withdraw(const QString& identifier)
{
    const auto posted = posted_.find(identifier);
    if (posted == posted_.end())
        return;
    if (posted->isAwaited) {
        posted->isWithdrawn = true;
        posted->next.reset();
        return;
    }
    close(posted->number);
    posted_.erase(posted);
}

void DesktopNotifications::send(const UserNotification& notification)
{
    posted_[notification.identifier].isAwaited = true;
    call(u"GetCapabilities"_s, {}, [this, notification](const QDBusMessage& answer) {
        notify(notification, QDBusPendingReply<QStringList>(answer).value());
    });
}

void DesktopNotifications::notify(const UserNotification& notification, const QStringList& capabilities)
{
    QStringList actions{desktop::clickOnItself, QString()};
    for (const auto& action : notification.actions)
        actions << action.identifier << action.title;
    const bool readsMarkup = capabilities.contains("body-markup"_L1);
    const QVariantMap hints{
        {u"desktop-entry"_s, sender_.desktopEntry},
        {u"urgency"_s, QVariant::fromValue<uchar>(notification.isUrgent ? desktop::Critical : desktop::Normal)}};
    const auto lasts = static_cast<int>(notification.lasts.count());
    const QVariantList arguments{sender_.name,
                                 posted_[notification.identifier].number,
                                 sender_.desktopEntry,
                                 notification.title,
                                 readsMarkup ? notification.text.toHtmlEscaped() : notification.text,
                                 capabilities.contains("actions"_L1) ? actions : QStringList(),
                                 hints,
                                 lasts > 0 ? lasts : desktop::desktopsOwnTime};
    call(u"Notify"_s, arguments, [this, identifier = notification.identifier](const QDBusMessage& answer) {
        taken(identifier, QDBusPendingReply<uint>(answer).value());
    });
}

void DesktopNotifications::taken(const QString& identifier, uint number)
{
    Posted& posted = posted_[identifier];
    posted.isAwaited = false;
    posted.number = number;
    if (posted.isWithdrawn || number == 0) { // nobody has taken it
        if (number != 0)
            close(number);
        posted_.remove(identifier);
    } else if (const auto next = std::exchange(posted.next, std::nullopt)) {
        send(*next);
    }
}

void DesktopNotifications::close(uint number)
{
    call(u"CloseNotification"_s, {number}, {});
}

void DesktopNotifications::actionInvoked(uint number, const QString& action)
{
    for (auto posted = posted_.cbegin(); posted != posted_.cend(); ++posted) {
        if (posted->number == number) {
            Q_EMIT chosen(QString(posted.key()), action == desktop::clickOnItself ? QString() : action);
            return;
        }
    }
}

void DesktopNotifications::notificationClosed(uint number, uint /*reason*/)
{
    posted_.removeIf([number](auto posted) { return posted->number == number && !posted->isAwaited; });
}

void DesktopNotifications::call(const QString& method, const QVariantList& arguments,
                                const std::function<void(const QDBusMessage& answer)>& then)
{
    auto message = QDBusMessage::createMethodCall(desktop::service, desktop::path, desktop::interface, method);
    message.setArguments(arguments);
    auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, then] {
        answer->deleteLater();
        if (then)
            then(answer->reply());
    });
}

std::unique_ptr<UserNotifications> makeUserNotifications(const NotificationSender& sender)
{
    return std::make_unique<DesktopNotifications>(QDBusConnection::sessionBus(), sender);
}

} // namespace quillon
