#include "VersionsPane.h"

#include "BackupSetup.h"
#include "LocalizedString.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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
