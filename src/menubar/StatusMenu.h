#pragma once

#include <QAction>
#include <QList>
#include <QMenu>

namespace quillon {

/// The status menu with the items that the controller titles, enables and hides. The items live as long as the menu.
class StatusMenu final : public QMenu {
    Q_OBJECT

public:
    StatusMenu();

    QAction* const phaseMenuItem;
    QAction* const backupDiskMenuItem;
    QAction* const remainingTimeMenuItem;
    QAction* const skipRetryAttemptMenuItem;
    QAction* const backupNowMenuItem;
    QAction* const pauseScheduleMenuItem;
    QAction* const resumeScheduleMenuItem;
    QAction* const resumeScheduleSeparator;
    QAction* const updateAvailableMenuItem;
    QAction* const quitMenuItem;

    /// The items of the pause item's submenu; each carries its length in seconds as data.
    QList<QAction*> pauseDurationItems() const;

    /// Titles an item with a text that is shown as it stands: neither a mnemonic nor a shortcut is read from it.
    static void setTitle(QAction* item, const QString& title);

private:
    QAction* addItem(const QString& objectName);
    void addPauseDurations();
};

} // namespace quillon
