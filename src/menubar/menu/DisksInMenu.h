#pragma once

#include "BackupDisksMenu.h"
#include "DataManager.h"
#include "HistoryMenu.h"
#include "RunFollower.h"
#include "StatusMenu.h"
#include "TMUtil.h"
#include "UserDefaults.h"

#include <QList>
#include <QObject>

namespace quillon {

/// The backup disks in the menu: which to back up to, and the latest backup of each. They are asked for as the menu
/// opens; the menu is not delayed, its submenus follow when Time Machine has answered.
class DisksInMenu final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        DataManager& dataManager;
        TMUtil& tmutil;
        const BackupRun& run;
    };

    DisksInMenu(const Services& services, StatusMenu& menu);

    const QList<BackupDestination>& backupDisks() const { return backupDisks_; }
    /// Asks for the disks' names.
    void request();
    void menuWillOpen();
    /// Takes away what a running backup leaves no use for.
    void withdrawSubmenus();
    /// Enables the disks to choose from, which may be on the screen at this moment.
    void setChoiceEnabled(bool enabled);
    QList<HistoryMenu::Row> historyRows() const;

Q_SIGNALS:
    void listed();
    void systemChoiceClicked();
    void diskClicked(const QString& identifier);
    void helpButtonPressed();

private:
    void take(const QList<BackupDestination>& disks);
    void refreshMenu();
    void offerBackupDisks();
    void carryLegacyRecordOver();
    void showHistory();

    Services services_;
    StatusMenu& menu_;
    BackupDisksMenu backupDisksMenu_;
    HistoryMenu historyMenu_;
    QList<BackupDestination> backupDisks_;
    bool namesAreAwaited_ = false;
    bool menuIsAwaited_ = false; ///< the menu has been opened and not yet filled
};

} // namespace quillon
