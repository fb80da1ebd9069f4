#include "TimelinePane.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Symbol_linux.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int nameRole = Qt::UserRole;

void addEntry(QTreeWidgetItem& group, const TimelineEntry& entry)
{
    auto* item = new QTreeWidgetItem(&group);
    QString text = entry.title;
    if (!entry.remark.isEmpty()) {
        text += u" – "_s + entry.remark;
        item->setIcon(0, rowSymbol(u"exclamationmark.triangle"_s, SymbolColor::SystemOrange));
    }
    item->setText(0, text);
    item->setToolTip(0, entry.details.toHtmlEscaped());
    item->setData(0, Qt::AccessibleTextRole, entry.details);
    item->setData(0, nameRole, entry.backup);
}

} // namespace

TimelinePane::TimelinePane(QWidget* parent)
    : QWidget(parent)
    , disksLabel_(new QLabel(localizedString("browseDiskLabel")))
    , disks_(new QComboBox)
    , timeline_(new QTreeWidget)
{
    disks_->setObjectName(u"disks"_s);
    disksLabel_->setBuddy(disks_);
    disks_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    timeline_->setObjectName(u"timeline"_s);
    timeline_->setAccessibleName(localizedString("browseTimelineName"));
    timeline_->setHeaderHidden(true);
    timeline_->setUniformRowHeights(true);
    timeline_->setRootIsDecorated(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(disksLabel_);
    column->addWidget(disks_);
    column->addWidget(timeline_, 1);
    connect(disks_, &QComboBox::currentIndexChanged, this, [this] {
        fillTimeline({});
        Q_EMIT chosen(current());
    });
    connect(timeline_, &QTreeWidget::currentItemChanged, this, [this] {
        if (const QString backup = current(); !backup.isEmpty())
            Q_EMIT chosen(backup);
    });
}

void TimelinePane::setBackups(const std::vector<Backup>& backups, const std::vector<BackupDisk>& disks, Date now)
{
    const QString before = current();
    backups_ = backups;
    now_ = now;
    fillDisks(disks);
    fillTimeline(before);
    Q_EMIT chosen(current());
}

void TimelinePane::choose(const QString& backup)
{
    const auto found = std::ranges::find(backups_, backup, &Backup::name);
    if (found == backups_.end() || current() == backup)
        return;
    {
        const QSignalBlocker blocker(disks_);
        disks_->setCurrentIndex(disks_->findData(found->disk));
    }
    fillTimeline(backup);
    Q_EMIT chosen(current());
}

void TimelinePane::fillDisks(const std::vector<BackupDisk>& disks)
{
    const QSignalBlocker blocker(disks_);
    const QVariant before = disks_->currentData();
    disks_->clear();
    for (const Backup& backup : backups_) {
        if (disks_->findData(backup.disk) >= 0)
            continue;
        const auto known = std::ranges::find(disks, backup.disk, &BackupDisk::id);
        disks_->addItem(known == disks.end() ? shownName(backup.disk) : known->name, backup.disk);
    }
    disks_->setCurrentIndex(std::max(disks_->findData(before), 0));
    for (QWidget* widget : {static_cast<QWidget*>(disksLabel_), static_cast<QWidget*>(disks_)})
        widget->setVisible(disks_->count() > 1);
}

void TimelinePane::fillTimeline(const QString& wanted)
{
    const QSignalBlocker blocker(timeline_);
    timeline_->clear();
    std::vector<Backup> shown;
    std::ranges::copy_if(backups_, std::back_inserter(shown),
                         [&](const Backup& backup) { return backup.disk == disks_->currentData().toString(); });
    QTreeWidgetItem* selected = nullptr;
    for (const TimelineGroup& group : timeline(shown, now_, QLocale().firstDayOfWeek())) {
        auto* heading = new QTreeWidgetItem(timeline_, {group.title});
        heading->setFlags(Qt::ItemIsEnabled);
        QFont bold = timeline_->font();
        bold.setBold(true);
        heading->setFont(0, bold);
        for (const TimelineEntry& entry : group.entries) {
            addEntry(*heading, entry);
            if (!selected || entry.backup == wanted)
                selected = heading->child(heading->childCount() - 1);
        }
        heading->setExpanded(true);
    }
    timeline_->setCurrentItem(selected);
}

QString TimelinePane::current() const
{
    const QTreeWidgetItem* item = timeline_->currentItem();
    return item ? item->data(0, nameRole).toString() : QString();
}

} // namespace quillon
