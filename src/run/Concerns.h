#pragma once

#include "Date.h"

#include <QList>
#include <QMap>
#include <QString>

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>

/// What the user should be told without having asked, as functions of one moment.
namespace quillon::concerns {

/// Each is told of once a day at most, and no more once it is mended.
enum class Kind : std::uint8_t {
    BackupFailed,    ///< told unless a first retry may mend it
    NoBackupForDays, ///< whatever the reason
    StartWithoutRun, ///< a start was accepted, and no run has followed
    NoProgress,      ///< of the run that goes on
    DamageFound,     ///< in the backups
};

/// The worst first.
inline constexpr std::array kinds = {Kind::DamageFound, Kind::NoBackupForDays, Kind::BackupFailed,
                                     Kind::StartWithoutRun, Kind::NoProgress};

/// The name that settings know it by.
QString nameOf(Kind kind);

struct Facts {
    Date now;
    std::optional<Date> lastCompleted{}; ///< of all disks
    Date watchedSince{};                 ///< nothing earlier is known of
    int daysWithoutBackup = 0;           ///< that are too many; 0: never told
    int failedInARow = 0;                ///< runs since the last completed one
    bool retryIsPlanned = false;
    bool isActive = false; ///< a run goes on, or a start was accepted
    /// Uptime since a start was accepted that no run has followed.
    std::optional<std::chrono::milliseconds> startAwaited{};
    /// Uptime since the run that goes on has shown any progress.
    std::optional<std::chrono::milliseconds> withoutProgress{};
    bool damageIsKnown = false;
};

/// What is wrong, the worst first.
QList<Kind> found(const Facts& facts);

/// What has been told, and when.
using Told = QMap<Kind, Date>;

struct Change {
    QList<Kind> post;
    QList<Kind> withdraw;

    bool operator==(const Change&) const = default;
};

/// What is to be done about it: `shown` are those that have not been withdrawn.
Change change(const Facts& facts, const QList<Kind>& shown, const Told& told);

} // namespace quillon::concerns
