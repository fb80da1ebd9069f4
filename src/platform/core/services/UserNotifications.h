#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

namespace quillon {

/// A word to the user that the desktop shows. Texts are plain text, already localised.
struct UserNotification {
    struct Action {
        QString identifier;
        QString title;
    };

    QString identifier; ///< one that is posted again takes the place of the earlier one
    QString title;
    QString text;
    bool isUrgent = false;   ///< stays until the user has seen it, where the desktop can tell them apart
    QList<Action> actions{}; ///< left out where the desktop shows none
    /// How long it is of use, for desktops that would take it away earlier; 0: as long as they think fit.
    std::chrono::milliseconds lasts{0};
};

/// The desktop's notifications. They are lost where a desktop has none: nothing may depend on them.
class UserNotifications : public QObject {
    Q_OBJECT

public:
    virtual void post(const UserNotification& notification) = 0;
    /// Takes it away; nothing where there is none of that identifier any more.
    virtual void withdraw(const QString& identifier) = 0;

Q_SIGNALS:
    /// The user has chosen an action of it; an empty one is a click on the notification itself.
    void chosen(const QString& identifier, const QString& action);
};

/// What a desktop shows of who posts. macOS knows it by the bundle.
struct NotificationSender {
    QString name;         ///< as users know it
    QString desktopEntry; ///< without its ending; its icon is shown
};

std::unique_ptr<UserNotifications> makeUserNotifications(const NotificationSender& sender);

} // namespace quillon
