#pragma once

#include <QString>

#include <cstdint>

/// What differs between the systems that this program runs on, and has no face among their services.
namespace quillon {

/// Path of the system's tmutil; on Linux of the one that is installed with this program.
QString systemTmutilPath();

/// The file of the user's ledger, in the folder for what programs remember.
QString ledgerFile();

/// Whether the system itself tells users of backups that fail to come, stays awake for one that runs, and starts one
/// that is late when its disk comes.
bool systemWatchesOverBackups();

/// What a user can do something about when Time Machine answers a start with this exit status; empty where there is no
/// such thing. A signal's number, which stands for a child that was killed, cannot be told from an exit status.
QString startFailureReason(std::int32_t exitStatus);

/// For the companion, which is installed beside Quillon: starts it, and does not wait for it. False, with one clear
/// line in `error`, when it does not start.
[[nodiscard]] bool startQuillon(QString* error);

} // namespace quillon
