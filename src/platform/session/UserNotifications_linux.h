#pragma once

#include "Services.h"

#include <QDBusConnection>
#include <QHash>

#include <functional>
#include <optional>

class QDBusMessage;

namespace quillon {

/// Notifications of the desktop, Desktop Notifications Specification 1.2. Who shows them may be absent, come late or
/// restart; no call waits for it.
class DesktopNotifications final : public UserNotifications {
    Q_OBJECT

public:
    /// Without a connected bus nothing is ever shown.
    DesktopNotifications(const QDBusConnection& sessionBus, NotificationSender sender);

    void post(const UserNotification& notification) override;
    void withdraw(const QString& identifier) override;

private Q_SLOTS:
    void actionInvoked(uint number, const QString& action);
    void notificationClosed(uint number, uint reason);

private:
    /// One that was posted; the desktop numbers it when it has taken it.
    struct Posted {
        uint number = 0;
        bool isAwaited = false;                 ///< the answer with its number
        std::optional<UserNotification> next{}; ///< what is to take its place once there is an answer
        bool isWithdrawn = false;
    };

    void send(const UserNotification& notification);
    void notify(const UserNotification& notification, const QStringList& capabilities);
    void taken(const QString& identifier, uint number);
    void close(uint number);
    void call(const QString& method, const QVariantList& arguments,
              const std::function<void(const QDBusMessage& answer)>& then);

    QDBusConnection bus_;
    const NotificationSender sender_;
    QHash<QString, Posted> posted_;
};

} // namespace quillon
