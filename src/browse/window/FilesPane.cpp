#include "FilesPane.h"

#include "BackupSetup.h"
#include "FileLock.h"
#include "LocalizedString.h"
#include "Services.h"
#include "Text.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto folderName = "preview-"_L1;

} // namespace

Preview::Preview(const Setup::Services& services, Workspace& workspace, QString folder)
    : services_(services)
    , workspace_(workspace)
    , folder_(std::move(folder))
{
    const QDir kept(folder_);
    for (const QString& name : kept.entryList({folderName + u'*'}, QDir::Dirs | QDir::NoSymLinks))
        QDir(kept.filePath(name)).removeRecursively();
}

void Preview::show(const QString& backup, const FileEntry& file)
{
    const QString name = shownName(file.path);
    fetching_.reset();
    if (!copies_ && makePrivateFolder(folder_))
        copies_.emplace(folder_ + u'/' + folderName + "XXXXXX"_L1);
    const QString around = copies_ ? copies_->filePath(QString::number(++count_)) : QString();
    if (around.isEmpty() || !makePrivateFolder(around))
        return fail(name, copies_ ? copies_->errorString() : folder_);
    const QString copy = around + file.path.sliced(file.path.lastIndexOf(u'/'));
    Q_EMIT progressed(localizedString("browsePreviewing").arg(name));
    fetching_ = std::make_unique<ToolCall>(
        services_, QStringList{u"restore"_s, u"--json"_s, u"--"_s, backup + file.path, copy},
        ToolCall::Handlers{.line = [](const QByteArray&) { return true; },
                           .ended =
                               [this, name, copy](const QString& complaint) {
                                   fetching_.reset();
                                   Q_EMIT progressed({});
                                   complaint.isEmpty() ? open(name, copy) : fail(name, complaint);
                               }});
}

void Preview::open(const QString& name, const QString& copy)
{
    QFile::setPermissions(copy, QFile::ReadOwner);
    workspace_.openURL(QUrl::fromLocalFile(copy), [this, name](bool opened) {
        if (!opened)
            fail(name, localizedString("browseNoProgram"));
    });
}

void Preview::fail(const QString& name, const QString& complaint)
{
    services_.alerts.present({.style = AlertStyle::Warning,
                              .messageText = localizedString("browsePreviewFailed").arg(name),
                              .informativeText = complaint,
                              .buttons = {localizedString("disksOkTitle")}},
                             {});
}

namespace {

constexpr auto backKeys = Qt::ALT | Qt::Key_Left;
constexpr auto upKeys = Qt::ALT | Qt::Key_Up;

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

} // namespace quillon
