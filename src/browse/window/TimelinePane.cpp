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
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

namespace {

// All backups are looked through: who walks through a folder does not ask for each of its files.
constexpr auto pauseBeforeAsking = 400ms;

} // namespace

VersionsPane::VersionsPane(const Setup::Services& services, QWidget* parent)
    : QWidget(parent)
    , services_(services)
    , heading_(new QLabel(localizedString("browseVersionsName")))
    , sentence_(new QLabel)
    , list_(new QTreeWidget)
{
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setWordWrap(true);
    sentence_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    list_->setObjectName(u"versions"_s);
    list_->setAccessibleName(localizedString("browseVersionsName"));
    list_->setHeaderHidden(true);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setColumnCount(2);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    heading_->setBuddy(list_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(heading_);
    column->addWidget(sentence_, 1);
    column->addWidget(list_, 1);
    connect(list_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        Q_EMIT chosen(versions_.at(static_cast<std::size_t>(list_->indexOfTopLevelItem(item))));
    });
    wantNone();
}

void VersionsPane::setBackupTitles(const QHash<QString, QString>& titles)
{
    titles_ = titles;
    path_.clear();
}

void VersionsPane::want(const QString& path)
{
    if (std::exchange(path_, path) == path)
        return;
    asking_.reset();
    versions_.clear();
    tell(localizedString("browseSearching"));
    delay_ = services_.runLoop.scheduleAfter(pauseBeforeAsking, [this] { ask(); });
}

void VersionsPane::wantNone()
{
    path_.clear();
    asking_.reset();
    delay_.invalidate();
    tell(localizedString("browseVersionsHint"));
}

void VersionsPane::ask()
{
    asking_ = std::make_unique<ToolCall>(
        services_, QStringList{u"versions"_s, u"--json"_s, u"--"_s, path_},
        ToolCall::Handlers{.line =
                               [this](const QByteArray& line) {
                                   auto version = readFileLine(line);
                                   if (version)
                                       versions_.push_back(std::move(*version));
                                   return version.has_value();
                               },
                           .ended = [this](const QString& complaint) { showVersions(complaint); }});
}

void VersionsPane::showVersions(const QString& complaint)
{
    asking_.reset();
    if (!complaint.isEmpty())
        return tell(localizedString("browseReadFailed").arg(complaint));
    if (versions_.empty())
        return tell(localizedString("browseNoVersions"));
    list_->clear();
    for (const FileEntry& version : versions_) {
        const QString title = titles_.value(version.backup, shownName(version.backup));
        auto* item = new QTreeWidgetItem(list_, {title, version.size ? sizeText(*version.size) : QString()});
        item->setToolTip(0, title.toHtmlEscaped());
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    sentence_->hide();
    list_->show();
}

void VersionsPane::tell(const QString& sentence)
{
    sentence_->setText(sentence);
    sentence_->show();
    list_->hide();
}

} // namespace quillon
