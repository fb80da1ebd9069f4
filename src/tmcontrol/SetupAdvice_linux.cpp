#include "LocalizedString.h"
#include "RunLoop.h"
#include "SetupAdvice.h"
#include "TMUtil.h"
#include "Text.h"

#include <memory>
#include <utility>

namespace quillon {

namespace {

QString namesOf(const QList<BackupDestination>& disks)
{
    QStringList names;
    for (const auto& disk : disks)
        names.append(displayedName(disk.name));
    return names.join(u'\n');
}

QString textFor(const std::optional<QList<BackupDestination>>& disks)
{
    if (!disks)
        return localizedString("setupUnknownDisksMessage");
    if (disks->isEmpty())
        return localizedString("setupNoDiskMessage");
    return localizedString("setupDisksMessage").arg(namesOf(*disks));
}

} // namespace

SetupAdvice setupAdvice(const std::optional<QList<BackupDestination>>& disks)
{
    return {.style = AlertStyle::Informational,
            .subject = localizedString("setupDisksButtonTitle"),
            .title = localizedString("disksDisksTitle"),
            .text = textFor(disks),
            .diskIsMissing = disks && disks->isEmpty()};
}

void giveSetupAdvice(TMUtil& tmutil, RunLoop& runLoop, std::function<void(const SetupAdvice& advice)> take)
{
    struct Answer {
        std::optional<QList<BackupDestination>> disks;
        bool reported = false;
    };
    const auto answer = std::make_shared<Answer>();
    tmutil.getBackupDestinationsWithCompletionHandler(
        [answer, &runLoop, take = std::move(take)](bool success, const QList<BackupDestination>& disks) {
            // A call that failed is reported twice.
            answer->disks = success && !answer->reported ? std::optional(disks) : std::nullopt;
            if (!std::exchange(answer->reported, true))
                runLoop.enqueue([answer, take] { take(setupAdvice(answer->disks)); });
        });
}

} // namespace quillon
