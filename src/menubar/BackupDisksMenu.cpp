#include "BackupDisksMenu.h"

#include "LocalizedString.h"
#include "StatusMenu.h"

namespace quillon {

BackupDisksMenu::BackupDisksMenu(QWidget* parent)
    : QMenu(parent)
{
}

void BackupDisksMenu::setEntries(const QList<Entry>& entries)
{
    if (entries == entries_)
        return;
    entries_ = entries;
    clear();
    QAction* choice = addAction(QString());
    StatusMenu::setTitle(choice, localizedString("letMacOsDecideBackupDiskTitle"));
    connect(choice, &QAction::triggered, this, &BackupDisksMenu::systemChoiceClicked);
    addSeparator();
    for (const auto& entry : entries) {
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
