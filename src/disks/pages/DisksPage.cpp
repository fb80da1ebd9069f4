#include "DisksPage.h"

#include "LocalizedString.h"
#include "NetworkPlaceDialog.h"
#include "RecoveryKeyDialog.h"
#include "Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Each file of the backups is looked at.
constexpr auto longestMeasuring = 10min;

const char* whyNoDisk(MountedDisks::State state)
{
    switch (state) {
    case MountedDisks::State::Asked:
        return "disksListing";
    case MountedDisks::State::Failed:
        return "disksListFailed";
    case MountedDisks::State::Known:
        break;
    }
    return "disksNoOtherDisk";
}

} // namespace

DisksPage::DisksPage(Setup& setup, const QString& lsblk, QWidget* parent)
    : ListPage(localizedString("disksDisksTitle"), localizedString("disksDisksExplanation"), parent)
    , setup_(setup)
    , mountedDisks_(setup.services().launcher, setup.services().runLoop, lsblk)
    , keyBar_(new QWidget)
    , keyLabel_(new QLabel)
    , usage_(setup.services().launcher, setup.services().runLoop, setup.services().tmutil, longestMeasuring)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(u"addDisk"_s);
    addButton(localizedString("disksAddDiskTitle"))->setMenu(menu);
    QPushButton* folder = addButton(panelTitle("disksAddFolderTitle"));
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillMenu(*menu); });
    connect(folder, &QPushButton::clicked, this, [this] {
        choose(localizedString("disksAddFolderTitle"), false, [this](const QString& path) { add(path); });
    });
    connect(this, &ListPage::removeRequested, this, &DisksPage::confirmRemoval);
    connect(this, &ListPage::editRequested, this, &DisksPage::editPlace);
    addBar(makeKeyBar());
}

QWidget* DisksPage::makeKeyBar()
{
    auto* button = new QPushButton(panelTitle("disksShowKeyTitle"));
    button->setObjectName(u"showKey"_s);
    keyLabel_->setTextFormat(Qt::PlainText);
    keyLabel_->setWordWrap(true);
    auto* row = new QHBoxLayout(keyBar_);
    row->setContentsMargins({});
    row->addWidget(keyLabel_, 1);
    row->addWidget(button);
    keyBar_->hide();
    connect(button, &QPushButton::clicked, this, [this] {
        if (const BackupDisk* disk = diskWithoutKey())
            offerRecoveryKey(*disk);
    });
    return keyBar_;
}

void DisksPage::reload()
{
    mountedDisks_.refresh();
    setup_.read({u"destinationinfo"_s, u"-X"_s}, [this](const QByteArray& answer) { return take(answer); });
}

bool DisksPage::take(const QByteArray& answer)
{
    const auto disks = readBackupDisks(answer);
    if (!disks)
        return false;
    disks_ = *disks;
    showDisks();
    measure();
    if (const auto before = std::exchange(idsBeforeAddition_, std::nullopt)) {
        const auto added = std::ranges::find_if(
            disks_, [&](const BackupDisk& disk) { return disk.present && !before->contains(disk.id); });
        if (added != disks_.end() && !added->recoveryKeyKept)
            offerRecoveryKey(*added);
    }
    return true;
}

void DisksPage::showDisks()
{
    std::vector<ListEntry> entries;
    for (const BackupDisk& disk : disks_) {
        const auto taken = taken_.find(disk.id);
        entries.push_back(diskEntry(disk, taken == taken_.end() ? std::nullopt : std::optional(taken->second)));
    }
    setEntries(entries, localizedString("disksNoDisks"));
    const BackupDisk* const disk = diskWithoutKey();
    if (disk)
        keyLabel_->setText(localizedString("disksKeyBar").arg(disk->name));
    keyBar_->setVisible(disk != nullptr);
}

/// Anew when a disk comes or a backup has been made.
void DisksPage::measure()
{
    QStringList wanted;
    for (const BackupDisk& disk : disks_) {
        if (disk.present && !disk.network)
            wanted << disk.id << QString::number(disk.lastBackup.value_or(Date()).time_since_epoch().count());
    }
    if (std::exchange(measured_, wanted) == wanted || wanted.isEmpty())
        return;
    usage_.call({u"diskusage"_s, u"-X"_s}, [this](const TmutilAnswer& answer) {
        taken_ = readUsage(answer.output).value_or(std::map<QString, qint64>());
        showDisks();
    });
}

void DisksPage::fillMenu(QMenu& menu)
{
    menu.clear();
    for (const MountedDisk& disk : mountedDisks_.list()) {
        if (std::ranges::find(disks_, disk.path, &BackupDisk::path) != disks_.end())
            continue;
        QString title = disk.name;
        if (disk.bytesFree)
            title = localizedString("disksFree").arg(title, sizeText(*disk.bytesFree));
        QAction* action = menu.addAction(title.replace('&'_L1, "&&"_L1));
        connect(action, &QAction::triggered, this, [this, path = disk.path] { add(path); });
    }
    if (menu.isEmpty())
        menu.addAction(localizedString(whyNoDisk(mountedDisks_.state())))->setEnabled(false);
    menu.addSeparator();
    QAction* place = menu.addAction(panelTitle("disksAddPlaceTitle"));
    place->setObjectName(u"addPlace"_s);
    connect(place, &QAction::triggered, this, &DisksPage::addPlace);
}

QStringList DisksPage::ids() const
{
    QStringList ids;
    for (const BackupDisk& disk : disks_)
        ids.append(disk.id);
    return ids;
}

void DisksPage::addPlace()
{
    auto* dialog = new NetworkPlaceDialog(setup_, std::nullopt, this);
    connect(dialog, &NetworkPlaceDialog::kept, this, [this] { idsBeforeAddition_ = ids(); });
    dialog->open();
}

void DisksPage::editPlace(const QString& id)
{
    const auto place = std::ranges::find(disks_, id, &BackupDisk::id);
    if (place != disks_.end())
        (new NetworkPlaceDialog(setup_, *place, this))->open();
}

void DisksPage::add(const QString& path)
{
    setup_.change({u"setdestination"_s, u"-a"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(shownName(path)),
                  [this](const QByteArray&) {
                      idsBeforeAddition_ = ids();
                      return true;
                  });
}

void DisksPage::confirmRemoval(const QString& id, const QString& name)
{
    const auto disk = std::ranges::find(disks_, id, &BackupDisk::id);
    const bool isPlace = disk != disks_.end() && disk->network;
    setup_.confirm(
        localizedString("disksRemoveAlertMessage").arg(name),
        localizedString(isPlace ? "disksPlaceRemoveInformative" : "disksRemoveAlertInformative"),
        localizedString("disksRemoveTitle"), [this, id, name] {
            setup_.change({u"removedestination"_s, u"--"_s, id}, localizedString("disksRemoveFailed").arg(name));
        });
}

const BackupDisk* DisksPage::diskWithoutKey() const
{
    const auto found =
        std::ranges::find_if(disks_, [](const BackupDisk& disk) { return disk.present && !disk.recoveryKeyKept; });
    return found == disks_.end() ? nullptr : &*found;
}

void DisksPage::offerRecoveryKey(const BackupDisk& disk)
{
    setup_.change({u"recoverykey"_s, u"-X"_s, u"-d"_s, disk.id}, localizedString("disksKeyFailed").arg(disk.name),
                  [this, disk](const QByteArray& answer) {
                      const auto key = readRecoveryKey(answer);
                      if (key)
                          showRecoveryKey(disk, *key);
                      return key.has_value();
                  });
}

void DisksPage::showRecoveryKey(const BackupDisk& disk, const RecoveryKey& key)
{
    auto* dialog = new RecoveryKeyDialog({.disk = disk.name,
                                          .path = disk.path,
                                          .isPlace = disk.network.has_value(),
                                          .key = key.key,
                                          .made = setup_.services().runLoop.now()},
                                         setup_, this);
    connect(dialog, &RecoveryKeyDialog::kept, this, [this, disk, identifier = key.identifier] {
        setup_.change({u"recoverykey"_s, u"--kept"_s, identifier, u"-d"_s, disk.id},
                      localizedString("disksKeepFailed").arg(disk.name));
    });
    dialog->open();
}

} // namespace quillon
