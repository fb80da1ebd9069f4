#pragma once

#include "Calendar.h"
#include "Report.h"
#include "RunLoop.h"
#include "TMReports.h"
#include "Task.h"
#include "UserDefaults.h"

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

/// Finds out what `quillonctl doctor` tells, and changes nothing.
class Doctor {
public:
    /// Longer than a disk takes to spin up.
    static constexpr std::chrono::seconds patience{20};

    /// `defaults` has the registered defaults behind it; `tool` is the path of tmutil.
    Doctor(RunLoop& runLoop, TaskLauncher& launcher, const UserDefaults& defaults, QString tool);

    /// Waits for the tool, up to `limit` for each of its two answers.
    Diagnosis examine(std::chrono::seconds limit = patience);

private:
    void examineProgram(Diagnosis& found) const;
    void examineStatus(Diagnosis& found, const ToolAnswer& answer) const;
    void examineDisks(Diagnosis& found, const ToolAnswer& answer) const;
    void examineSchedule(Diagnosis& found) const;
    void examineTimeZone(Diagnosis& found) const;

    RunLoop& runLoop_;
    TaskLauncher& launcher_;
    const UserDefaults& defaults_;
    const QString tool_;
};

} // namespace quillon
