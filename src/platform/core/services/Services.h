#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

// What programs want of the system and of the desktop that they run on: the seams at which tests play both. What stands
// behind them is in `platform/session/`, a source for each system; alerts are shown by `platform/ui/alert/`.

namespace quillon {

class RunLoop;

enum class AlertStyle { Warning = 0, Informational = 1, Critical = 2 };

/// What an alert says. Texts are plain text, already localised.
struct AlertRequest {
    AlertStyle style = AlertStyle::Informational;
    QString messageText;
    QString informativeText;
    QStringList buttons; ///< the first one is the default; none stands for "OK"
    /// Place of the button that destroys something; it is marked.
    std::optional<int> destructiveButton = std::nullopt;
    /// Place of the button that Escape and closing the window stand for; otherwise the last one that destroys nothing.
    std::optional<int> escapeButton = std::nullopt;
};

/// Response code of the first button; the following ones count up from it.
inline constexpr int alertFirstButtonReturn = 1000;
inline constexpr int alertSecondButtonReturn = 1001;

/// Shows alerts; the seam that keeps code without a display free of widgets.
class AlertPresenter {
public:
    AlertPresenter() = default;
    AlertPresenter(const AlertPresenter&) = delete;
    AlertPresenter& operator=(const AlertPresenter&) = delete;
    virtual ~AlertPresenter() = default;

    /// Shows the alert application-modally and returns at once; `answer` gets the response code when it is closed. One
    /// that comes while another is open waits for it.
    virtual void present(const AlertRequest& request, std::function<void(int response)> answer) = 0;
};

/// Keeps the machine from going to sleep by itself. Neither a closed lid nor an empty battery waits for it.
class AwakeLock {
public:
    AwakeLock() = default;
    AwakeLock(const AwakeLock&) = delete;
    AwakeLock& operator=(const AwakeLock&) = delete;
    /// Lets go of it.
    virtual ~AwakeLock() = default;

    /// `reason` is what the system tells users who ask, already localised. Holding it twice is holding it once.
    virtual void hold(const QString& reason) = 0;
    virtual void release() = 0;
};

std::unique_ptr<AwakeLock> makeAwakeLock();

/// Where the machine takes its power from.
struct PowerState {
    bool onMains = true;       ///< also where nobody can tell
    std::optional<int> charge; ///< of the battery, in per cent; none without a battery

    bool operator==(const PowerState&) const = default;
};

/// Tells of the machine's power, while somebody wants to know.
class PowerSupply : public QObject {
    Q_OBJECT

public:
    /// As last heard; on mains while it does not watch. The first answer comes some moments after the watch has begun,
    /// with changed() if it differs.
    virtual PowerState state() const = 0;

    /// Begins or ends the watch; the state it is in already changes nothing.
    virtual void setWatching(bool watching) = 0;
    /// Asks anew during the watch: whoever no longer answers is not believed for ever.
    virtual void refresh() = 0;

Q_SIGNALS:
    void changed();
};

std::unique_ptr<PowerSupply> makePowerSupply();

/// Tells that a file system was mounted or unmounted, without looking at any: one that hangs stops nobody.
class MountWatch : public QObject {
    Q_OBJECT

public:
    /// Begins or ends the watch; the state it is in already changes nothing. Where the system does not let itself be
    /// watched, nothing is told.
    virtual void setWatching(bool watching) = 0;

Q_SIGNALS:
    /// Something about mounts has changed. One disk that appears may be told of several times.
    void changed();
};

std::unique_ptr<MountWatch> makeMountWatch();

/// The user's session: opens addresses and applications, tells of sleep and wake.
class Workspace : public QObject {
    Q_OBJECT

public:
    using Completion = std::function<void(bool opened)>;

    /// Opens the address with the program that is registered for it; the completion may be empty.
    virtual void openURL(const QUrl& url, Completion completion) = 0;

    /// Opens the application of that bundle identifier, without asking the user for anything; the completion may be
    /// empty. Only macOS knows such identifiers; elsewhere a program of our own may stand for one.
    virtual void openApplication(const QString& bundleIdentifier, Completion completion) = 0;

Q_SIGNALS:
    /// The system is about to sleep; it waits until the slots connected directly have returned.
    void willSleep();
    void didWake();
};

/// Programs, by their paths, that open addresses for which a desktop has none.
using OwnPrograms = QMap<QUrl, QString>;

/// Programs, by their paths, that stand for applications that a desktop does not have.
using OwnApplications = QMap<QString, QString>;

/// What a desktop on Linux has to be told; macOS has a program for every address and tells no user why sleep waits.
struct WorkspaceNeeds {
    OwnPrograms ownPrograms;
    OwnApplications ownApplications = {};
    QString sleepReason; ///< why sleep waits for the slots of willSleep(), for users who ask; already localised
};

/// The workspace of the session that the program runs in; the run loop must outlive it.
std::unique_ptr<Workspace> makeWorkspace(RunLoop& runLoop, const WorkspaceNeeds& needs);

/// Whether the program is started at log-in.
class LoginItem {
public:
    LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;
    virtual ~LoginItem() = default;

    /// Registers or unregisters the program; false when the system did not take it.
    virtual bool setEnabled(bool enabled) = 0;
};

/// What is started at log-in.
struct LoginProgram {
    QString name;       ///< as users know it
    QString identifier; ///< of the application: Linux names an entry by it
    QString companion;  ///< identifier of the bundle inside the application that macOS starts
    QString path;       ///< absolute path of what Linux starts
};

/// The login item of the user who runs the program.
std::unique_ptr<LoginItem> makeLoginItem(const LoginProgram& program);

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
