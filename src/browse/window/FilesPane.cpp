#include "FilesPane.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Text.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QKeyCombination backKeys(Qt::ALT, Qt::Key_Left);
constexpr QKeyCombination upKeys(Qt::ALT, Qt::Key_Up);

QToolButton* makeArrow(Qt::ArrowType arrow, const char* key, const QKeySequence& keys)
{
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setAccessibleName(localizedString(key));
    button->setToolTip(localizedString(key) + " ("_L1 + keys.toString(QKeySequence::NativeText) + u')');
    return button;
}

} // namespace

FilesPane::FilesPane(FilesModel& model, QWidget* parent)
    : QWidget(parent)
    , model_(model)
    , back_(makeArrow(Qt::LeftArrow, "browseBackTitle", backKeys))
    , up_(makeArrow(Qt::UpArrow, "browseUpTitle", upKeys))
    , path_(new QLineEdit)
    , view_(new QTreeView)
    , sentence_(new QLabel)
    , again_(new QPushButton(localizedString("disksTryAgainTitle")))
{
    back_->setObjectName(u"back"_s);
    up_->setObjectName(u"up"_s);
    path_->setObjectName(u"path"_s);
    path_->setAccessibleName(localizedString("browsePathLabel"));
    view_->setObjectName(u"files"_s);
    view_->setAccessibleName(localizedString("browseFilesName"));
    view_->setModel(&model_);
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setAllColumnsShowFocus(true);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->header()->setSectionsMovable(false);
    view_->header()->setStretchLastSection(false); // names take the room that is left
    view_->header()->setSortIndicator(FilesModel::Name, Qt::AscendingOrder);
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setWordWrap(true);
    sentence_->setAlignment(Qt::AlignCenter);
    again_->setObjectName(u"readAgain"_s);
    again_->hide();
    auto* overlay = new QVBoxLayout(view_->viewport());
    overlay->addStretch();
    overlay->addWidget(sentence_);
    overlay->addWidget(again_, 0, Qt::AlignHCenter);
    overlay->addStretch();

    auto* row = new QHBoxLayout;
    row->addWidget(back_);
    row->addWidget(up_);
    row->addWidget(path_, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(row);
    column->addWidget(view_, 1);

    connect(back_, &QToolButton::clicked, this, &FilesPane::backAsked);
    connect(up_, &QToolButton::clicked, this, &FilesPane::upAsked);
    connect(again_, &QPushButton::clicked, this, &FilesPane::againAsked);
    connect(path_, &QLineEdit::returnPressed, this,
            [this] { Q_EMIT folderTyped(path_->isModified() ? path_->text() : folder_); });
    connect(view_, &QTreeView::activated, this, [this](const QModelIndex& index) { Q_EMIT opened(index.row()); });
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FilesPane::selectionChanged);
    connect(view_->header(), &QHeaderView::sortIndicatorChanged, this, &FilesPane::sortBy);
    connect(&model_, &QAbstractItemModel::modelReset, this, [this] {
        updateSentence();
        view_->header()->setSectionsClickable(model_.isFolder());
        view_->header()->setSortIndicatorShown(model_.isFolder());
        Q_EMIT selectionChanged();
    });
    connect(&model_, &QAbstractItemModel::rowsInserted, this, &FilesPane::updateSentence);
    addKeys();
}

void FilesPane::addKeys()
{
    // A button would only act once it has shown itself pressed.
    connect(new QShortcut(backKeys, this), &QShortcut::activated, this, &FilesPane::backAsked);
    connect(new QShortcut(upKeys, this), &QShortcut::activated, this, &FilesPane::upAsked);
    const auto inView = [this](Qt::Key key, auto&& then) {
        auto* shortcut = new QShortcut(QKeySequence(key), view_);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, then);
    };
    QHeaderView* header = view_->header();
    for (const auto column : {FilesModel::Name, FilesModel::Size, FilesModel::Modified}) {
        connect(new QShortcut(FilesModel::sortKeys(column), this), &QShortcut::activated, this, [this, header, column] {
            const bool reverse =
                header->sortIndicatorSection() == column && header->sortIndicatorOrder() == Qt::AscendingOrder;
            if (model_.isFolder())
                header->setSortIndicator(column, reverse ? Qt::DescendingOrder : Qt::AscendingOrder);
        });
    }
    inView(Qt::Key_Backspace, [this] { Q_EMIT upAsked(); });
    inView(Qt::Key_Space, [this] { Q_EMIT previewAsked(); });
}

void FilesPane::setFolder(const QString& folder)
{
    folder_ = folder;
    path_->setText(folder.isEmpty() ? u"/"_s : shownLongText(folder));
    up_->setEnabled(!folder.isEmpty());
}

void FilesPane::setBackEnabled(bool enabled)
{
    back_->setEnabled(enabled);
}

void FilesPane::tell(const QString& sentence, bool hasFailed)
{
    sentence_->setText(sentence);
    if (again_->hasFocus()) // or it goes elsewhere with the button
        view_->setFocus();
    again_->setVisible(hasFailed);
    if (hasFailed && view_->hasFocus())
        again_->setFocus();
    updateSentence();
}

void FilesPane::sortBy(int column, Qt::SortOrder order)
{
    if (column <= FilesModel::Modified) {
        sorted_ = {column, order};
        model_.sort(column, order);
        view_->scrollTo(view_->currentIndex());
    } else {
        view_->header()->setSortIndicator(sorted_.first, sorted_.second);
    }
}

void FilesPane::updateSentence()
{
    sentence_->setVisible(model_.rowCount() == 0);
    view_->setAccessibleDescription(model_.rowCount() == 0 ? sentence_->text() : QString());
}

void FilesPane::select(const QString& path)
{
    const int row = model_.rowOf(path);
    if (model_.rowCount() == 0 || (row < 0 && view_->currentIndex().isValid()))
        return;
    const QModelIndex index = model_.index(std::max(row, 0), 0);
    view_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view_->scrollTo(index);
}

void FilesPane::fitColumns()
{
    const int text = view_->fontMetrics().averageCharWidth();
    constexpr int nameColumns = 30;
    constexpr int otherColumns = 26;
    int others = 0;
    for (int column = 1; column < model_.columnCount(); ++column) {
        view_->resizeColumnToContents(column);
        view_->setColumnWidth(column, std::min(view_->columnWidth(column), otherColumns * text));
        others += view_->columnWidth(column);
    }
    view_->setColumnWidth(0, std::max(nameColumns * text, view_->viewport()->width() - others));
}

void FilesPane::takeKeyboard()
{
    view_->setFocus();
    if (!view_->currentIndex().isValid() && model_.rowCount() > 0)
        view_->setCurrentIndex(model_.index(0, 0));
}

std::vector<int> FilesPane::selectedRows() const
{
    std::vector<int> rows;
    for (const QModelIndex& index : view_->selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::ranges::sort(rows);
    return rows;
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
