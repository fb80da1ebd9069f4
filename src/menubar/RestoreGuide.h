#pragma once

#include "AlertPresenter.h"

#include <optional>

namespace quillon {

/// What to tell a user who wants to look into the backups where the system has no Time Machine application: the
/// commands that list and restore them. Nothing where it has one.
std::optional<AlertRequest> restoreGuide(const QStringList& latestBackups);

} // namespace quillon
