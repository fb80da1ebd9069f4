#pragma once

#include "LogindSleepWatch_linux.h"
#include "Workspace.h"
#include "WorkspaceFactory.h"

#include <QDBusConnection>

namespace quillon {

class RunLoop;

/// Opens addresses with xdg-open(1) or a program of our own, hears of sleep from logind.
class LinuxWorkspace final : public Workspace {
public:
    /// `systemBus` is where logind is looked for; it need not be connected.
    LinuxWorkspace(RunLoop& runLoop, const QDBusConnection& systemBus, OwnPrograms ownPrograms = {});

    /// The completion gets true when xdg-open ends with status 0, and also when it still runs after ten seconds:
    /// without a desktop environment it stays for as long as the browser that it started.
    void openURL(const QUrl& url, Completion completion) override;
    void openApplication(const QString& bundleIdentifier, Completion completion) override;

private:
    void report(bool opened, Completion completion);

    RunLoop& runLoop_;
    OwnPrograms ownPrograms_;
    LogindSleepWatch sleepWatch_;
};

} // namespace quillon
