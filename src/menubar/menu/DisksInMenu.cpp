#include "DisksInMenu.h"

#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "Shown.h"
#include "Words.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

DisksInMenu::DisksInMenu(const Services& services, StatusMenu& menu)
    : services_(services)
    , menu_(menu)
    , backupDisksMenu_(&menu)
    , historyMenu_(&menu)
{
    connect(&backupDisksMenu_, &BackupDisksMenu::systemChoiceClicked, this, &DisksInMenu::systemChoiceClicked);
    connect(&backupDisksMenu_, &BackupDisksMenu::diskClicked, this, &DisksInMenu::diskClicked);
    connect(&historyMenu_, &HistoryMenu::helpButtonPressed, this, &DisksInMenu::helpButtonPressed);
}

void DisksInMenu::take(const QList<BackupDestination>& disks)
{
    backupDisks_ = disks;
    Q_EMIT listed();
}

void DisksInMenu::request()
{
    if (std::exchange(namesAreAwaited_, true))
        return; // one list tells all who ask before it is there, and holds up no second poll
    services_.tmutil.getBackupDestinationsWithCompletionHandler([this](bool, const QList<BackupDestination>& disks) {
        namesAreAwaited_ = false;
        take(disks);
    });
}

void DisksInMenu::menuWillOpen()
{
    if (services_.run.isReported()) {
        withdrawSubmenus();
        return;
    }
    if (std::exchange(menuIsAwaited_, true))
        return; // a tool that is slow to answer must not pile questions up
    struct Answer {
        QList<BackupDestination> disks;
        bool reported = false;
    };
    const auto answer = std::make_shared<Answer>();
    services_.tmutil.getBackupDestinationsWithCompletionHandler(
        [this, answer](bool, const QList<BackupDestination>& disks) {
            answer->disks = disks;
            if (std::exchange(answer->reported, true))
                return;
            // One answer may bring two reports: act once, on the last one.
            services_.runLoop.enqueue([this, answer] {
                menuIsAwaited_ = false;
                take(answer->disks);
                refreshMenu();
            });
        });
}

void DisksInMenu::refreshMenu()
{
    if (services_.run.isActive()) { // a backup began meanwhile
        withdrawSubmenus();
        return;
    }
    offerBackupDisks();
    carryLegacyRecordOver();
    showHistory();
}

void DisksInMenu::withdrawSubmenus()
{
    StatusMenu::setSubmenu(menu_.phaseMenuItem, nullptr);
    menu_.phaseMenuItem->setEnabled(false);
    StatusMenu::setSubmenu(menu_.backupNowMenuItem, nullptr);
}

void DisksInMenu::setChoiceEnabled(bool enabled)
{
    const auto disks = backupDisksMenu_.actions();
    for (QAction* disk : disks)
        disk->setEnabled(enabled);
}

void DisksInMenu::offerBackupDisks()
{
    if (backupDisks_.size() < 2) {
        StatusMenu::setSubmenu(menu_.backupNowMenuItem, nullptr);
        return;
    }
    QList<BackupDisksMenu::Entry> entries;
    for (const auto& disk : std::as_const(backupDisks_)) {
        const QString name = words::diskName(disk.name);
        entries.append({disk.id, disk.isLast ? u"%1 (%2)"_s.arg(name, localizedString("mostRecentTitle")) : name});
    }
    backupDisksMenu_.setEntries(entries);
    StatusMenu::setSubmenu(menu_.backupNowMenuItem, &backupDisksMenu_);
}

void DisksInMenu::carryLegacyRecordOver()
{
    const auto date = services_.defaults.date(settingskeys::lastBackupDate);
    if (!date || !services_.dataManager.latestBackupInfo().isEmpty())
        return;
    const QString identifier = services_.defaults.string(settingskeys::lastBackupDiskIdentifier);
    services_.dataManager.recordLatestBackup(identifier, words::diskNameFor(identifier, backupDisks_),
                                             services_.defaults.integer(settingskeys::lastBackupBytesCopied), *date);
}

QList<HistoryMenu::Row> DisksInMenu::historyRows() const
{
    const Date now = services_.runLoop.now();
    QList<HistoryMenu::Row> rows;
    const auto& records = services_.dataManager.latestBackupInfo();
    for (const auto& record : records)
        rows.append({record.diskIdentifier(), words::diskName(record.diskName()),
                     shown::backupText(record.date(), record.totalBytes(), now)});
    for (const auto& disk : backupDisks_) {
        const bool recorded =
            std::ranges::any_of(records, [&](const BackupInfo& record) { return record.diskIdentifier() == disk.id; });
        if (!recorded)
            rows.append({disk.id, words::diskName(disk.name), shown::backupText(std::nullopt, 0, now)});
    }
    return rows;
}

void DisksInMenu::showHistory()
{
    const auto rows = historyRows();
    const bool isOverview = rows.size() >= 2; // a single disk needs none
    if (isOverview)
        historyMenu_.setRows(rows);
    StatusMenu::setSubmenu(menu_.phaseMenuItem, isOverview ? &historyMenu_ : nullptr);
    menu_.phaseMenuItem->setEnabled(isOverview);
}

} // namespace quillon
