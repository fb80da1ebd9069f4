#pragma once

#include "Power_linux.h"
#include "Services.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace quillon {

/// Sleep and wake as logind announces them, org.freedesktop.login1(5).
///
/// Holds a delay lock while the system is awake, so that sleep waits for the slots of willSleep(). logind may be
/// absent, come late or restart.
class LogindSleepWatch final : public QObject {
    Q_OBJECT

public:
    /// Without a connected bus nothing is ever announced. `reason` is what logind tells users who ask why sleep waits.
    LogindSleepWatch(const QDBusConnection& systemBus, QString reason);

Q_SIGNALS:
    /// The lock is released when the slots connected directly have returned.
    void willSleep();
    void didWake();

private Q_SLOTS:
    void prepareForSleep(bool start);

private:
    void ownerChanged();

    const QString reason_;
    LogindSleepLock lock_;
    bool sleeping_ = false;
};

class RunLoop;

/// Opens addresses with xdg-open(1) or a program of our own, hears of sleep from logind.
class LinuxWorkspace final : public Workspace {
public:
    /// `systemBus` is where logind is looked for; it need not be connected.
    LinuxWorkspace(RunLoop& runLoop, const QDBusConnection& systemBus, WorkspaceNeeds needs = {});

    /// The completion gets true when xdg-open ends with status 0, and also when it still runs after ten seconds:
    /// without a desktop environment it stays for as long as the browser that it started.
    void openURL(const QUrl& url, Completion completion) override;
    void openApplication(const QString& bundleIdentifier, Completion completion) override;

private:
    void report(bool opened, Completion completion);

    RunLoop& runLoop_;
    const OwnPrograms ownPrograms_;
    const OwnApplications ownApplications_;
    LogindSleepWatch sleepWatch_;
};

} // namespace quillon
