#pragma once

#include "TMUtilQueue.h"
#include "TimeMachineSettings.h"

#include <QString>
#include <QStringList>

namespace quillon {

/// Time Machine control: reads what Time Machine does, starts and stops backups, opens its settings.
///
/// Results travel in handlers. A request that fails may be reported twice: once for the tool's exit status and once by
/// the parser of its output. It lives as long as the program: answers still under way refer to it.
class TMUtil {
public:
    TMUtil(TMUtilQueue& queue, TimeMachineSettings& settings);

    void getStatusWithCompletionHandler(StatusHandler handler);

    void getBackupDestinationsWithCompletionHandler(DestinationsHandler handler);

    /// Starts a backup to the disk of that identifier, or, where it is empty, to the next disk in rotation or to the
    /// one that Time Machine picks.
    void startBackupOnDiskWithIdentifier(const QString& identifier, bool rotateBackupDisks, StartHandler handler);

    void stopBackupWithCompletionHandler(StopHandler handler);

    /// Brings up the system's Time Machine settings; an alert about it calls this program `applicationName`.
    void openTimeMachineSettings(const QString& applicationName);

    /// English phrase of a raw phase word; "N/A" for none.
    QString stringForBackupPhase(const QString& rawPhase) const;

private:
    /// Runs one command of the tool; everything above goes through here.
    void callTMUtilWithCommand(const QString& command, const QStringList& arguments,
                               std::function<void(TMUtilHandlers&)> enterSlot,
                               std::function<void(const std::optional<QByteArray>&)> parse);

    TMUtilQueue& queue_;
    TimeMachineSettings& settings_;
};

} // namespace quillon
