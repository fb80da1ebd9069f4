#include "TMUtil.h"

#include "TMStatus.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

TMUtil::TMUtil(TMUtilQueue& queue, TimeMachineSettings& settings)
    : queue_(queue)
    , settings_(settings)
{
}

void TMUtil::getStatusWithCompletionHandler(StatusHandler handler)
{
    callTMUtilWithCommand(
        u"status"_s, {}, [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.status = handler; },
        [&queue = queue_](const std::optional<QByteArray>& output) {
            if (const auto reportTo = queue.handlers().status)
                reportTo(TMStatus::fromOutput(output));
        });
}

void TMUtil::getBackupDestinationsWithCompletionHandler(DestinationsHandler handler)
{
    callTMUtilWithCommand(
        u"destinationinfo"_s, {u"-X"_s},
        [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.destinationinfo = handler; },
        [&queue = queue_](const std::optional<QByteArray>& output) {
            const auto destinations = BackupDestinations::fromOutput(output);
            if (const auto reportTo = queue.handlers().destinationinfo)
                reportTo(destinations.success, destinations.list);
        });
}

void TMUtil::startBackupOnDiskWithIdentifier(const QString& identifier, bool rotateBackupDisks, StartHandler handler)
{
    QStringList arguments;
    if (!identifier.isEmpty())
        arguments = {u"-d"_s, identifier};
    else if (rotateBackupDisks)
        arguments = {u"-r"_s};
    callTMUtilWithCommand(u"startbackup"_s, arguments,
                          [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.startbackup = handler; },
                          {});
}

void TMUtil::stopBackupWithCompletionHandler(StopHandler handler)
{
    callTMUtilWithCommand(u"stopbackup"_s, {},
                          [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.stopbackup = handler; },
                          {});
}

void TMUtil::openTimeMachineSettings(const QString& applicationName)
{
    settings_.open(applicationName);
}

QString TMUtil::stringForBackupPhase(const QString& rawPhase) const
{
    return backupphase::phrase(rawPhase);
}

void TMUtil::callTMUtilWithCommand(const QString& command, const QStringList& arguments,
                                   std::function<void(TMUtilHandlers&)> enterSlot,
                                   std::function<void(const std::optional<QByteArray>&)> parse)
{
    queue_.submit({command, arguments, std::move(enterSlot), std::move(parse)});
}

} // namespace quillon
