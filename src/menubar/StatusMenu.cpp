#include "StatusMenu.h"

#include "EmojiFont.h"
#include "LocalizedString.h"
#include "PauseDurations.h"

#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

StatusMenu::StatusMenu()
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
{
    // These only inform.
    for (QAction* item : {phaseMenuItem, backupDiskMenuItem, remainingTimeMenuItem})
        item->setEnabled(false);
    for (QAction* item : {backupDiskMenuItem, skipRetryAttemptMenuItem, resumeScheduleMenuItem, resumeScheduleSeparator,
                          updateAvailableMenuItem})
        item->setVisible(false);
    addPauseDurations();
    setFont(withColorEmoji(font()));
    dimInformation();
}

void StatusMenu::dimInformation()
{
    // Items that only inform are disabled, but people read them: paler than the others, at least 4.5:1 to the ground.
    constexpr float strength = 0.7F;
    QPalette dimmed = palette();
    QColor text = dimmed.color(QPalette::Active, QPalette::WindowText);
    text.setAlphaF(strength);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dimmed.setColor(QPalette::Disabled, role, text);
    if (dimmed != palette())
        setPalette(dimmed);
}

void StatusMenu::changeEvent(QEvent* event)
{
    QMenu::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        dimInformation();
}

void StatusMenu::resizeEvent(QResizeEvent* event)
{
    QMenu::resizeEvent(event);
    // Titles grow and submenus appear while the menu is open.
    const QRect available = screen()->availableGeometry();
    if (isVisible() && geometry().right() > available.right())
        move(std::max(available.left(), available.right() + 1 - width()), y());
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
