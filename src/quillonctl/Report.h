#pragma once

#include "Calendar.h"
#include "ControlRequest.h"
#include "Date.h"
#include "Ledger.h"
#include "TMReports.h"
#include "UserDefaults.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace quillon {

/// The next `count` dates that the stored rules give at or after `from`, a running pause taken into account, each later
/// than the one before; none while the schedule is off.
QList<Date> comingStarts(const UserDefaults& defaults, Date from, int count);

} // namespace quillon

/// What quillonctl prints: text for people, JSON for scripts; each ends in a line feed unless it is empty.
namespace quillon::report {

QByteArray status(const TMStatus& status, bool json);
QByteArray destinations(const QList<BackupDestination>& destinations, bool json);
QByteArray starts(const QList<Date>& starts, bool json);
QByteArray history(std::span<const LedgerEntry> entries, bool json);

} // namespace quillon::report

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

namespace report {

/// The whole of it on one page for people.
QByteArray doctorText(const Diagnosis& diagnosis);

/// The same for programs; a key is always there, null where nothing is known. Its keys never change their meaning.
QByteArray doctorJson(const Diagnosis& diagnosis);

} // namespace report

} // namespace quillon
