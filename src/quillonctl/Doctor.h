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

/// What `quillonctl doctor` has found out. It is fit to be published: paths have ~ for the home folder, and names of
/// files and folders that are backed up are left out, as are keys.
struct Diagnosis {
    /// How the tool answered one of its reading commands.
    struct Answer {
        QString command;
        std::chrono::milliseconds time{0};
        QString trouble; ///< why there is no answer; empty when there is one

        bool operator==(const Answer&) const = default;
    };

    struct Disk {
        QString name;
        std::optional<bool> isSetUp;     ///< false: only remembered from earlier backups; nothing: the tool is silent
        std::optional<bool> isConnected; ///< nothing when the tool does not tell
        bool isLast = false;             ///< the one that was used last
        std::optional<Date> latestBackup;

        bool operator==(const Disk&) const = default;
    };

    /// What the tool remembers of the last backup that went wrong; empty fields where it does not tell.
    struct Failure {
        QString date;
        QString disk;
        QString cause; ///< a word such as "NoSpace"
        qlonglong unreadFiles = 0;

        bool operator==(const Failure&) const = default;
    };

    Date now;
    QString version;
    QString build;
    QString qtVersion;

    QString system;
    QString kernel;
    QString architecture;
    QString desktop;
    QString sessionType;
    QString language;
    QString itemPlace; ///< "menu bar", "tray" or "bar"
    QString itemReason;

    QString toolPath;
    Answer status;
    Answer destinations;
    QString activity; ///< what Time Machine does right now; empty when it did not tell

    QList<Disk> disks;

    bool scheduleIsOn = false;
    QStringList rules;
    QList<Date> comingStarts;
    std::optional<Date> pausedUntil;
    bool retriesMissed = false;
    bool retriesFailed = false;
    bool rotatesDisks = false;

    QString timeZone;
    int offset = 0;                         ///< seconds east of Greenwich, now
    std::optional<OffsetChange> zoneChange; ///< such as the start of daylight saving

    QString iconState; ///< the one that the menu bar showed last
    bool lastRunFailed = false;
    std::optional<Failure> lastFailure;
};

/// What a person should look at, a sentence each; empty when all is well.
QStringList problems(const Diagnosis& diagnosis);

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
