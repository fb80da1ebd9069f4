#include "AlertPopover.h"
#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

void StatusMenuController::carryLegacyRecordOver()
{
    const auto date = defaults_.date(settingskeys::lastBackupDate);
    if (!date || !sharedDataManager_.latestBackupInfo().isEmpty())
        return;
    const QString identifier = defaults_.string(settingskeys::lastBackupDiskIdentifier);
    sharedDataManager_.recordLatestBackup(identifier, nameForBackupDiskWithIdentifier(identifier),
                                          defaults_.integer(settingskeys::lastBackupBytesCopied), *date);
}

QList<HistoryMenu::Row> StatusMenuController::historyRows() const
{
    QList<HistoryMenu::Row> rows;
    const auto& records = sharedDataManager_.latestBackupInfo();
    for (const auto& record : records)
        rows.append({record.diskIdentifier(), nameForBackupDiskWithName(record.diskName()),
                     backupText(record.date(), record.totalBytes())});
    for (const auto& disk : backupDisks_) {
        const bool recorded = std::any_of(records.begin(), records.end(),
                                          [&](const BackupInfo& record) { return record.diskIdentifier() == disk.id; });
        if (!recorded)
            rows.append({disk.id, nameForBackupDiskWithName(disk.name), backupText(std::nullopt, 0)});
    }
    return rows;
}

void StatusMenuController::showHistory()
{
    const auto rows = historyRows();
    const bool isOverview = rows.size() >= 2; // a single disk needs none
    if (isOverview)
        historyMenu_.setRows(rows);
    StatusMenu::setSubmenu(statusMenu_.phaseMenuItem, isOverview ? &historyMenu_ : nullptr);
    statusMenu_.phaseMenuItem->setEnabled(isOverview);
}

void StatusMenuController::allBackupInfoHelpButtonPressed()
{
    statusMenu_.close();             // it holds the keyboard and the pointer
    auto help = historyHelp_.lock(); // there already, or pushed aside by another one: once is enough
    if (!help) {
        AlertRequest request;
        request.informativeText = localizedString("allBackupInfoHelpMessage");
        request.buttons = {localizedString("AlertButtonClose")};
        help = AlertPopover::create(request);
        historyHelp_ = help;
    }
    help->runAsPopoverForView(statusItem_.anchor(), RectEdge::MinY);
}

} // namespace quillon
