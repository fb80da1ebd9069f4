#pragma once

#include "Services.h"
#include "TMReports.h"

#include <functional>
#include <optional>

namespace quillon {

class RunLoop;
class TMUtil;

/// What a user should know for the schedule to do its work: on a Mac how Time Machine's own automatic backups are
/// switched off; elsewhere, where nothing else starts backups, which disks they are made to.
struct SetupAdvice {
    AlertStyle style = AlertStyle::Informational;
    QString subject; ///< names the button that leads to it
    QString title;
    QString text;
    bool diskIsMissing = false; ///< no backup can start before a disk is set up

    bool operator==(const SetupAdvice&) const = default;
};

/// The advice for these backup disks, or what can be said while they are not known.
SetupAdvice setupAdvice(const std::optional<QList<BackupDestination>>& disks);

/// Gives the advice once: on a Mac at once, elsewhere when the tool has told of the disks. The tool and the run loop
/// must outlive the answer.
void giveSetupAdvice(TMUtil& tmutil, RunLoop& runLoop, std::function<void(const SetupAdvice& advice)> take);

} // namespace quillon
