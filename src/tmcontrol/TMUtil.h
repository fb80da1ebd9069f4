#pragma once

#include "AlertPresenter.h"
#include "TMUtilQueue.h"
#include "Workspace.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <list>
#include <memory>

namespace quillon {

/// Time Machine control: reads what Time Machine does, starts and stops backups, opens its settings.
///
/// Nothing here blocks; results travel in handlers, which are called on the main thread. A request that fails may be
/// reported twice: once for the tool's exit status and once by the parser of its output. It lives as long as the
/// program: answers still under way refer to it.
class TMUtil {
public:
    TMUtil(TMUtilQueue& queue, TaskLauncher& launcher, RunLoop& runLoop, Workspace& workspace, AlertPresenter& alerts);

    void getStatusWithCompletionHandler(StatusHandler handler);

    void getBackupDestinationsWithCompletionHandler(DestinationsHandler handler);

    /// Starts a backup to the disk of that identifier, or, where it is empty, to the next disk in rotation or to the
    /// one that Time Machine picks.
    void startBackupOnDiskWithIdentifier(const QString& identifier, bool rotateBackupDisks, StartHandler handler);

    void stopBackupWithCompletionHandler(StopHandler handler);

    /// Brings up the system's Time Machine settings. Before version 13 that takes a script, and the user is told how to
    /// permit it when it fails; `applicationName` is the name used in that alert.
    void openTimeMachineSettings(const QString& applicationName);

    /// Address of the system's Time Machine settings, from version 13 on.
    static QUrl settingsAddress();

    /// English phrase of a raw phase word; "N/A" for none.
    QString stringForBackupPhase(const QString& rawPhase) const;

private:
    /// Runs one command of the tool; everything above goes through here.
    void callTMUtilWithCommand(const QString& command, const QStringList& arguments,
                               std::function<void(TMUtilHandlers&)> enterSlot,
                               std::function<void(const std::optional<QByteArray>&)> parse);
    void presentPermissionAlert(const QString& applicationName);

    TMUtilQueue& queue_;
    TaskLauncher& launcher_;
    RunLoop& runLoop_;
    Workspace& workspace_;
    AlertPresenter& alerts_;
    std::list<std::unique_ptr<RunningTask>> settingsScripts_; ///< each may wait for what the user answers the system
};

} // namespace quillon
