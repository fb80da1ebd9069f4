#pragma once

#include "BackupDestination.h"
#include "RunLoop.h"
#include "TaskLauncher.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace quillon {

/// What came of one reading command of the tool.
struct ToolAnswer {
    QByteArray output; ///< what the tool printed, UTF-8; empty when it printed nothing that can be used
    QByteArray errors; ///< what it complained of on standard error
    QString trouble;   ///< what went wrong, as the end of a sentence; empty when the tool ended well
    std::chrono::milliseconds time{0};
};

/// Runs the tool and waits, in an event loop of its own. A tool that has not ended within `limit` is killed and no
/// longer waited for, whether or not it ends then.
ToolAnswer askTool(RunLoop& runLoop, TaskLauncher& launcher, const QString& tool, const QStringList& words,
                   std::chrono::seconds limit);

/// The disks in an answer to `destinationinfo -X`; nothing when it cannot be understood. An empty dictionary, which the
/// system's tool prints while no disk is set up, holds none.
std::optional<QList<BackupDestination>> destinationsIn(const QByteArray& output);

} // namespace quillon
