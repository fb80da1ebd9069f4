#pragma once

#include "RunLoop.h"

#include <QAction>
#include <QHash>
#include <QList>
#include <QMenu>
#include <QString>

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>

/// The lengths for which the schedule can be paused.
namespace quillon::pausedurations {

struct Duration {
    std::int64_t seconds;
    const char* titleKey;
};

inline constexpr std::array<Duration, 15> all = {{
    {3600, "oneHourTitle"},
    {7200, "twoHoursTitle"},
    {14400, "fourHoursTitle"},
    {28800, "eightHoursTitle"},
    {43200, "twelveHoursTitle"},
    {86400, "oneDayTitle"},
    {172800, "twoDaysTitle"},
    {259200, "threeDaysTitle"},
    {345600, "fourDaysTitle"},
    {432000, "fiveDaysTitle"},
    {518400, "sixDaysTitle"},
    {604800, "oneWeekTitle"},
    {1209600, "twoWeeksTitle"},
    {1814400, "threeWeeksTitle"},
    {2419200, "fourWeeksTitle"},
}};

} // namespace quillon::pausedurations

namespace quillon {

/// The status menu with the items that the controller titles, enables and hides. The items live as long as the menu;
/// none of them is ever a submenu's own action.
///
/// While it is on the screen its rows keep their places, and what an item does is what could be read there: a row never
/// slides under the pointer of somebody who is about to click.
class StatusMenu final : public QMenu {
    Q_OBJECT

public:
    explicit StatusMenu(const RunLoop& runLoop);

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

    /// Shows an item or hides it; in an open menu once it has been closed.
    void setShown(QAction* item, bool shown);

    /// Whether an item of the open menu got another title or another way of being used so shortly ago that a click on
    /// it was meant for what it said before.
    bool hasJustChanged(const QAction* item) const;

    /// Makes the menu the item's submenu, or, with none, leaves the item without one. A submenu that is on screen is
    /// closed before it goes. The menu stays the caller's.
    static void setSubmenu(QAction* item, QMenu* submenu);

    /// Check-marks an item, or leaves it without any mark.
    static void setState(QAction* item, bool on);

    /// Titles an item with a text that is shown as it stands: neither a mnemonic nor a shortcut is read from it.
    static void setTitle(QAction* item, const QString& title);

protected:
    void actionEvent(QActionEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// What can be read of an item, and when that changed before the user's eyes, on the uptime clock.
    struct Reading {
        QString title;
        bool opensSubmenu = false;
        std::optional<std::chrono::milliseconds> changed{};
    };

    /// The items that only inform; the first opens the history where there is one.
    std::array<QAction*, 3> information() const;
    QAction* addItem(const QString& objectName);
    /// A separator ahead of the item.
    QAction* addGroup(const QString& objectName);
    void addPauseDurations();

    const RunLoop& runLoop_;
    QHash<const QAction*, Reading> readings_; ///< since the menu was opened last
    QHash<QAction*, bool> shownNext_;         ///< when the menu has been closed
};

} // namespace quillon
