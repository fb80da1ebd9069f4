#pragma once

#include "Services.h"

#include <QList>
#include <QUrl>

#include <utility>
#include <vector>

namespace quillon {

class FakeWorkspace final : public Workspace {
public:
    QList<QUrl> opened;
    QStringList openedApplications;
    bool opens = true; ///< whether there is a program for what is to be opened

    void openURL(const QUrl& url, Completion completion) override
    {
        opened.append(url);
        if (completion)
            completion(opens);
    }
    void openApplication(const QString& bundleIdentifier, Completion completion) override
    {
        openedApplications.append(bundleIdentifier);
        if (completion)
            completion(opens);
    }
    void sleep() { Q_EMIT willSleep(); }
    void wake() { Q_EMIT didWake(); }
};

/// Keeps every alert and answers it when the test says so.
class FakeAlerts final : public AlertPresenter {
public:
    std::vector<std::pair<AlertRequest, std::function<void(int)>>> presented;

    void present(const AlertRequest& request, std::function<void(int)> answer) override
    {
        presented.emplace_back(request, std::move(answer));
    }
};

/// Keeps what is on the desktop.
class FakeUserNotifications final : public UserNotifications {
public:
    QList<UserNotification> posted; ///< in all
    QStringList shown;              ///< identifiers of those that stand

    void post(const UserNotification& notification) override
    {
        posted.append(notification);
        shown.removeOne(notification.identifier);
        shown.append(notification.identifier);
    }
    void withdraw(const QString& identifier) override { shown.removeOne(identifier); }
    void choose(const QString& action) { Q_EMIT chosen(shown.last(), action); }
};

class FakeAwakeLock final : public AwakeLock {
public:
    QString reason; ///< none while it is not held

    void hold(const QString& why) override { reason = why; }
    void release() override { reason.clear(); }
};

/// Tells what the test says, while it is asked to.
class FakePowerSupply final : public PowerSupply {
public:
    PowerState state() const override { return isWatching_ ? power_ : PowerState(); }
    void setWatching(bool watching) override { isWatching_ = watching; }
    void refresh() override { ++asked; }
    void become(const PowerState& power)
    {
        power_ = power;
        if (isWatching_)
            Q_EMIT changed();
    }

    int asked = 0; ///< anew

private:
    bool isWatching_ = false;
    PowerState power_;
};

class FakeMountWatch final : public MountWatch {
public:
    void setWatching(bool watching) override { isWatching_ = watching; }
    void change()
    {
        if (isWatching_)
            Q_EMIT changed();
    }

private:
    bool isWatching_ = false;
};

class FakeLoginItem final : public LoginItem {
public:
    std::vector<bool> calls;
    bool accepts = true; ///< whether the system takes what it is told

    bool setEnabled(bool enabled) override
    {
        calls.push_back(enabled);
        return accepts;
    }
};

} // namespace quillon
