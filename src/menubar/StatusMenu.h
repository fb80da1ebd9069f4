#pragma once

#include <QAction>
#include <QList>
#include <QMenu>
#include <QString>

namespace quillon {

/// The status menu with the items that the controller titles, enables and hides. The items live as long as the menu;
/// none of them is ever a submenu's own action.
class StatusMenu final : public QMenu {
    Q_OBJECT

public:
    StatusMenu();

    QAction* const phaseMenuItem;
    QAction* const backupDiskMenuItem;
    QAction* const pauseScheduleMenuItem;
    QAction* const resumeScheduleMenuItem;
    QAction* const resumeScheduleSeparator;
    QAction* const remainingTimeMenuItem;
    QAction* const skipRetryAttemptMenuItem;
    QAction* const backupNowMenuItem;
    QAction* const enterTimeMachineMenuItem;
    QAction* const updateAvailableMenuItem;
    QAction* const openSystemPreferencesMenuItem;
    QAction* const preferencesMenuItem;
    QAction* const aboutMenuItem;
    QAction* const quitMenuItem;

    /// The items of the pause item's submenu; each carries its length in seconds as data.
    QList<QAction*> pauseDurationItems() const;

    /// Makes the menu the item's submenu, or, with none, leaves the item without one. A submenu that is on screen is
    /// closed before it goes. The menu stays the caller's.
    static void setSubmenu(QAction* item, QMenu* submenu);

    /// Check-marks an item, or leaves it without any mark.
    static void setState(QAction* item, bool on);

    /// Titles an item with a text that is shown as it stands: neither a mnemonic nor a shortcut is read from it.
    static void setTitle(QAction* item, const QString& title);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void dimInformation();
    QAction* addItem(const QString& objectName);
    /// A separator ahead of the item.
    QAction* addGroup(const QString& objectName);
    void addPauseDurations();
};

} // namespace quillon
