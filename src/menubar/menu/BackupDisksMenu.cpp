#include "BackupDisksMenu.h"

#include "LocalizedString.h"
#include "StatusMenu.h"

#include <utility>

namespace quillon {

BackupDisksMenu::BackupDisksMenu(QWidget* parent)
    : QMenu(parent)
{
    connect(this, &QMenu::aboutToShow, this, &BackupDisksMenu::fill);
}

void BackupDisksMenu::setEntries(const QList<Entry>& entries)
{
    wanted_ = entries;
    if (!isVisible())
        fill();
}

void BackupDisksMenu::fill()
{
    if (entries_ == wanted_)
        return;
    entries_ = wanted_;
    clear();
    QAction* choice = addAction(QString());
    StatusMenu::setTitle(choice, localizedString("letMacOsDecideBackupDiskTitle"));
    connect(choice, &QAction::triggered, this, &BackupDisksMenu::systemChoiceClicked);
    addSeparator();
    for (const auto& entry : std::as_const(entries_)) {
        QAction* item = addAction(QString());
        StatusMenu::setTitle(item, entry.title);
        item->setData(entry.identifier);
        connect(item, &QAction::triggered, this, [this, item] { Q_EMIT diskClicked(item->data().toString()); });
    }
    const auto items = actions();
    for (QAction* item : items)
        item->setMenuRole(QAction::NoRole);
}

} // namespace quillon
