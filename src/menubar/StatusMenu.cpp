#include "StatusMenu.h"

#include "LocalizedString.h"
#include "PauseDurations.h"

namespace quillon {

using namespace Qt::StringLiterals;

StatusMenu::StatusMenu()
    : phaseMenuItem(addItem(u"phaseMenuItem"_s))
    , backupDiskMenuItem(addItem(u"backupDiskMenuItem"_s))
    , remainingTimeMenuItem(addItem(u"remainingTimeMenuItem"_s))
    , skipRetryAttemptMenuItem(addItem(u"skipRetryAttemptMenuItem"_s))
    , backupNowMenuItem((addSeparator(), addItem(u"backupNowMenuItem"_s)))
    , pauseScheduleMenuItem(addItem(u"pauseScheduleMenuItem"_s))
    , resumeScheduleMenuItem(addItem(u"resumeScheduleMenuItem"_s))
    , resumeScheduleSeparator(addSeparator())
    , updateAvailableMenuItem(addItem(u"updateAvailableMenuItem"_s))
    , quitMenuItem((addSeparator(), addItem(u"quitMenuItem"_s)))
{
    // These only inform.
    for (QAction* item : {phaseMenuItem, backupDiskMenuItem, remainingTimeMenuItem})
        item->setEnabled(false);
    for (QAction* item : {backupDiskMenuItem, skipRetryAttemptMenuItem, resumeScheduleMenuItem, resumeScheduleSeparator,
                          updateAvailableMenuItem})
        item->setVisible(false);
    pauseScheduleMenuItem->setCheckable(true);
    addPauseDurations();
}

void StatusMenu::addPauseDurations()
{
    auto* durations = new QMenu(this);
    for (const auto& duration : pausedurations::all) {
        QAction* item = durations->addAction(QString());
        setTitle(item, localizedString(duration.titleKey));
        item->setData(static_cast<qlonglong>(duration.seconds));
        item->setCheckable(true);
        item->setMenuRole(QAction::NoRole);
    }
    pauseScheduleMenuItem->setMenu(durations);
}

QList<QAction*> StatusMenu::pauseDurationItems() const
{
    return pauseScheduleMenuItem->menu()->actions();
}

QAction* StatusMenu::addItem(const QString& objectName)
{
    QAction* item = addAction(QString());
    item->setObjectName(objectName);
    item->setMenuRole(QAction::NoRole);
    return item;
}

void StatusMenu::setTitle(QAction* item, const QString& title)
{
    QString text = title;
    text.replace(u'&', "&&"_L1).remove(u'\t');
    item->setText(text);
}

} // namespace quillon
