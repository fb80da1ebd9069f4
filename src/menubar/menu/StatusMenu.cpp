#include "StatusMenu.h"

#include "Accessibility.h"
#include "LocalizedString.h"

#include <QActionEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStyleOptionMenuItem>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

StatusMenu::StatusMenu(const RunLoop& runLoop)
    : phaseMenuItem(addItem(u"phaseMenuItem"_s))
    , backupDiskMenuItem(addItem(u"backupDiskMenuItem"_s))
    , pauseScheduleMenuItem(addGroup(u"pauseScheduleMenuItem"_s))
    , resumeScheduleMenuItem(addItem(u"resumeScheduleMenuItem"_s))
    , resumeScheduleSeparator(addSeparator())
    , remainingTimeMenuItem(addItem(u"remainingTimeMenuItem"_s))
    , skipRetryAttemptMenuItem(addItem(u"skipRetryAttemptMenuItem"_s))
    , backupNowMenuItem(addGroup(u"backupNowMenuItem"_s))
    , enterTimeMachineMenuItem(addItem(u"enterTimeMachineMenuItem"_s))
    , updateAvailableMenuItem(addGroup(u"updateAvailableMenuItem"_s))
    , openSystemPreferencesMenuItem(addItem(u"openSystemPreferencesMenuItem"_s))
    , preferencesMenuItem(addItem(u"preferencesMenuItem"_s))
    , aboutMenuItem(addItem(u"aboutMenuItem"_s))
    , quitMenuItem(addGroup(u"quitMenuItem"_s))
    , runLoop_(runLoop)
{
    for (QAction* item : information())
        item->setEnabled(false);
    for (QAction* item : {backupDiskMenuItem, skipRetryAttemptMenuItem, resumeScheduleMenuItem, resumeScheduleSeparator,
                          updateAvailableMenuItem})
        item->setVisible(false);
    addPauseDurations();
    setAccessibleName(QGuiApplication::applicationDisplayName());
    setFont(withColorEmoji(font()));
}

std::array<QAction*, 3> StatusMenu::information() const
{
    return {phaseMenuItem, backupDiskMenuItem, remainingTimeMenuItem};
}

void StatusMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const
{
    QMenu::initStyleOption(option, action);
    if (action->isEnabled() || std::ranges::count(information(), action) == 0)
        return;
    // Paler than what can be chosen, and not as pale as a command that is off: people read them, which takes a contrast
    // of at least 4.5:1 (WCAG 2.1, 1.4.3).
    constexpr float strength = 0.75F;
    QColor text = palette().color(QPalette::Active, QPalette::WindowText);
    text.setAlphaF(strength);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        option->palette.setColor(QPalette::Disabled, role, text);
}

void StatusMenu::resizeEvent(QResizeEvent* event)
{
    QMenu::resizeEvent(event);
    // Titles grow while the menu is open.
    const QRect available = screen()->availableGeometry();
    if (isVisible() && geometry().right() > available.right())
        move(std::max(available.left(), available.right() + 1 - width()), y());
}

void StatusMenu::setShown(QAction* item, bool shown)
{
    if (isVisible())
        shownNext_[item] = shown;
    else
        item->setVisible(shown);
}

void StatusMenu::hideEvent(QHideEvent* event)
{
    QMenu::hideEvent(event);
    for (const auto& [item, shown] : std::exchange(shownNext_, {}).asKeyValueRange())
        item->setVisible(shown);
}

void StatusMenu::showEvent(QShowEvent* event)
{
    QMenu::showEvent(event);
    const auto items = actions();
    for (const QAction* item : items)
        readings_[item] = {item->text(), item->menu() != nullptr};
}

void StatusMenu::actionEvent(QActionEvent* event)
{
    QMenu::actionEvent(event);
    if (QMenu* submenu = event->action()->menu())
        submenu->setAccessibleName(event->action()->text().replace("&&"_L1, "&"_L1));
    if (!isVisible() || event->type() != QEvent::ActionChanged)
        return;
    const QAction* item = event->action();
    Reading& reading = readings_[item];
    if (reading.title != item->text() || reading.opensSubmenu != (item->menu() != nullptr))
        reading = {item->text(), item->menu() != nullptr, runLoop_.uptime()};
}

bool StatusMenu::hasJustChanged(const QAction* item) const
{
    constexpr auto timeToReact = 500ms; // from seeing something to not clicking any more
    const auto changed = readings_.value(item).changed;
    return changed && runLoop_.uptime() - *changed < timeToReact;
}

void StatusMenu::addPauseDurations()
{
    auto* durations = new QMenu(this);
    for (const auto& duration : pausedurations::all) {
        QAction* item = durations->addAction(QString());
        setTitle(item, localizedString(duration.titleKey));
        item->setData(static_cast<qlonglong>(duration.seconds));
        item->setMenuRole(QAction::NoRole);
    }
    pauseScheduleMenuItem->setMenu(durations);
}

QList<QAction*> StatusMenu::pauseDurationItems() const
{
    return pauseScheduleMenuItem->menu()->actions();
}

void StatusMenu::setSubmenu(QAction* item, QMenu* submenu)
{
    QMenu* current = item->menu();
    if (current == submenu)
        return;
    if (current)
        current->hide();
    item->setMenu(submenu);
}

void StatusMenu::setState(QAction* item, bool on)
{
    // An item that can be checked shows an empty box while it is not.
    item->setCheckable(on);
    item->setChecked(on);
}

QAction* StatusMenu::addItem(const QString& objectName)
{
    QAction* item = addAction(QString());
    item->setObjectName(objectName);
    item->setMenuRole(QAction::NoRole);
    return item;
}

QAction* StatusMenu::addGroup(const QString& objectName)
{
    addSeparator();
    return addItem(objectName);
}

void StatusMenu::setTitle(QAction* item, const QString& title)
{
    QString text = title;
    text.replace(u'&', "&&"_L1).remove(u'\t');
    item->setText(text);
}

} // namespace quillon
