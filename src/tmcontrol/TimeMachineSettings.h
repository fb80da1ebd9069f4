#pragma once

#include "RunLoop.h"
#include "Services.h"
#include "Task.h"

#include <QString>
#include <QUrl>

#include <list>
#include <memory>

namespace quillon {

/// Brings up the system's Time Machine settings. It lives as long as the program: scripts still under way refer to it.
class TimeMachineSettings {
public:
    TimeMachineSettings(TaskLauncher& launcher, RunLoop& runLoop, Workspace& workspace, AlertPresenter& alerts);

    /// Before version 13 that takes a script, and the user is told how to permit it when it fails; `applicationName` is
    /// the name used in that alert.
    void open(const QString& applicationName);

    /// Address of the settings, from version 13 on.
    static QUrl address();

    /// Identifier of the application that looks through the backups.
    static QString browser();

private:
    void presentPermissionAlert(const QString& applicationName);

    TaskLauncher& launcher_;
    RunLoop& runLoop_;
    Workspace& workspace_;
    AlertPresenter& alerts_;
    std::list<std::unique_ptr<RunningTask>> scripts_; ///< each may wait for what the user answers the system
};

} // namespace quillon
