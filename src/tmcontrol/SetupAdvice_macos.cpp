#include "DataHelper.h"
#include "LocalizedString.h"
#include "SetupAdvice.h"

namespace quillon {

SetupAdvice setupAdvice(const std::optional<QList<BackupDestination>>& /*disks*/)
{
    return {.style = AlertStyle::Warning,
            .subject = localizedString("warningButtonTitle"),
            .title = localizedString("AlertTitleWarning"),
            .text = disableTimeMachineInstruction()};
}

void giveSetupAdvice(TMUtil& /*tmutil*/, RunLoop& /*runLoop*/, std::function<void(const SetupAdvice& advice)> take)
{
    take(setupAdvice(std::nullopt));
}

} // namespace quillon
