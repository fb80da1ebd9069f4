#pragma once

#include "AlertPresenter.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace quillon {

/// What to tell a user who wants to look into the backups where the system has no Time Machine application: the
/// commands that list and restore them, or, as long as no backup was completed, the one that finds what others made.
/// Nothing where the system has such an application.
/// @param latestBackups one line for each disk; empty as long as no backup was completed
std::optional<AlertRequest> restoreGuide(const QStringList& latestBackups);

/// What a user can do something about when Time Machine answers a start with this exit status; empty where the number
/// says nothing more.
QString startFailureReason(std::int32_t exitStatus);

} // namespace quillon
