#pragma once

#include "DataManager.h"
#include "RunFollower.h"
#include "StatusMenu.h"
#include "TMUtil.h"
#include "UserDefaults.h"

#include <QList>
#include <QMenu>
#include <QObject>
#include <QString>

namespace quillon {

/// Submenu of the backup-now item: which disk to back up to.
class BackupDisksMenu final : public QMenu {
    Q_OBJECT

public:
    struct Entry {
        QString identifier; ///< of the destination
        QString title;

        bool operator==(const Entry&) const = default;
    };

    /// The parent is the menu that it opens from.
    explicit BackupDisksMenu(QWidget* parent);

    /// What it offers beside the choice of the system, once it has been closed: a click is meant for what was there.
    void setEntries(const QList<Entry>& entries);

Q_SIGNALS:
    void systemChoiceClicked();
    void diskClicked(const QString& identifier);

private:
    void fill();

    QList<Entry> wanted_;
    QList<Entry> entries_;
};

/// Submenu of the status line: the latest backup of each disk, headed by a title with a help button.
///
/// A desktop that draws the menu itself shows the rows as plain text; there the title opens the help.
class HistoryMenu final : public QMenu {
    Q_OBJECT

public:
    struct Row {
        QString identifier; ///< of the destination
        QString heading;    ///< its name, shown as a heading
        QString value;

        QString title() const { return heading + QStringLiteral(": ") + value; }
        bool operator==(const Row&) const = default;
    };

    /// The parent is the menu that it opens from.
    explicit HistoryMenu(QWidget* parent);

    /// What it lists, once it has been closed: rows do not move under the pointer.
    void setRows(const QList<Row>& rows);

Q_SIGNALS:
    void helpButtonPressed();

private:
    void fill();
    void giveKeyboardTo(QAction* item);
    void addTitle();
    QWidget* createAllBackupInfoTitleMenuItemView();
    void addRow(const Row& row);

    QList<Row> wanted_;
    QList<Row> rows_;
};

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
    /// What becomes of the known disks where the answer cannot be read.
    enum class Unreadable { ForgetsThem, KeepsThem };

    /// Asks for the disks; false while an earlier question is awaited, whose answer then is everybody's.
    bool request(Unreadable answer = Unreadable::ForgetsThem);
    void menuWillOpen();
    /// Takes away what a running backup leaves no use for.
    void withdrawSubmenus();
    /// Enables the disks to choose from, which may be on the screen at this moment.
    void setChoiceEnabled(bool enabled);

Q_SIGNALS:
    void listed();
    /// The same of a list that could be read, in a later turn.
    void told(const QList<BackupDestination>& disks);
    void systemChoiceClicked();
    void diskClicked(const QString& identifier);
    void helpButtonPressed();

private:
    QList<HistoryMenu::Row> historyRows() const;
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
