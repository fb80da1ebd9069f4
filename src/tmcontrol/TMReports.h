#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

namespace quillon {

/// A disk that Time Machine is set up to back up to.
struct BackupDestination {
    QString id;
    QString name;           ///< for a network destination with the server's name behind it; may be percent-encoded
    bool isLast = false;    ///< the one that Time Machine used last
    bool isMounted = false; ///< of a destination on a server only where the system mounts it

    bool operator==(const BackupDestination&) const = default;
};

/// What reading the destinations gave: success is false only for output that could not be read.
struct BackupDestinations {
    bool success = true;
    QList<BackupDestination> list; ///< by id, in the order of code points

    /// Reads what "tmutil destinationinfo -X" printed.
    static BackupDestinations fromOutput(const std::optional<QByteArray>& output);
};

/// What Time Machine is doing.
enum class TMState : std::int64_t {
    Unknown = -1,   ///< the status could not be read
    NotRunning = 0, ///< no backup runs
    Running = 1,    ///< a backup runs
    Stopping = 2,   ///< a backup runs and is being stopped
    Starting = 3,   ///< Quillon's own: a start was accepted, the run is not reported yet
};

/// One status report of Time Machine.
struct TMStatus {
    bool failed = false;                 ///< the status could not be read
    TMState state = TMState::NotRunning; ///< never Starting
    QString phase;                       ///< raw phase word, "Not Running" or "Unknown"
    double percent = 0;                  ///< progress of the whole backup, a fraction; not bounded from above
    double timeRemaining = 0;            ///< seconds; 0 when unknown
    std::int64_t bytesCopied = 0;        ///< 0 when unknown
    QString destinationID;               ///< empty when not reported
    QString lastFailure{};               ///< what the last run met with, in the tool's words; empty where it tells none
    bool damageIsKnown = false;          ///< of the backups on any disk

    static TMStatus failure();
    static TMStatus notRunning();

    /// Reads what "tmutil status" printed; nothing, or anything that cannot be read, gives failure().
    static TMStatus fromOutput(const std::optional<QByteArray>& output);

    bool operator==(const TMStatus&) const = default;
};

} // namespace quillon

namespace quillon::backupphase {

/// The English phrase of a raw phase word of the status report; an unknown word is its own phrase.
QString phrase(const QString& rawPhase);

/// Localisation key of an English phrase; null for a phrase that has none and is shown as it is.
const char* localizationKey(const QString& phrase);

} // namespace quillon::backupphase
