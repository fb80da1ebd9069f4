#include "LocalizedString.h"
#include "StatusMenuController.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

void StatusMenuController::menuWillOpen()
{
    if (tmState_ == TMState::Running || tmState_ == TMState::Stopping) {
        withdrawSubmenus();
        return;
    }
    // A tool that is slow to answer must not pile questions up.
    if (menuDisksAreAwaited_)
        return;
    menuDisksAreAwaited_ = true;
    struct Answer {
        QList<BackupDestination> disks;
        bool reported = false;
    };
    const auto answer = std::make_shared<Answer>();
    tmutil_.getBackupDestinationsWithCompletionHandler([this, answer](bool, const QList<BackupDestination>& disks) {
        answer->disks = disks;
        if (std::exchange(answer->reported, true))
            return;
        // One answer may bring two reports: act once, on the last one.
        runLoop_.enqueue([this, answer] {
            menuDisksAreAwaited_ = false;
            refreshMenu(answer->disks);
        });
    });
}

void StatusMenuController::refreshMenu(const QList<BackupDestination>& disks)
{
    backupDisks_ = disks;
    updateBackupDiskMenuItem();
    if (isActive()) { // a backup began meanwhile
        withdrawSubmenus();
        return;
    }
    offerBackupDisks();
    carryLegacyRecordOver();
    showHistory();
}

void StatusMenuController::withdrawSubmenus()
{
    StatusMenu::setSubmenu(statusMenu_.phaseMenuItem, nullptr);
    statusMenu_.phaseMenuItem->setEnabled(false);
    StatusMenu::setSubmenu(statusMenu_.backupNowMenuItem, nullptr);
}

void StatusMenuController::offerBackupDisks()
{
    if (backupDisks_.size() < 2) {
        StatusMenu::setSubmenu(statusMenu_.backupNowMenuItem, nullptr);
        return;
    }
    QList<BackupDisksMenu::Entry> entries;
    for (const auto& disk : std::as_const(backupDisks_)) {
        const QString name = nameForBackupDiskWithName(disk.name);
        entries.append({disk.id, disk.isLast ? u"%1 (%2)"_s.arg(name, localizedString("mostRecentTitle")) : name});
    }
    backupDisksMenu_.setEntries(entries);
    StatusMenu::setSubmenu(statusMenu_.backupNowMenuItem, &backupDisksMenu_);
}

} // namespace quillon
