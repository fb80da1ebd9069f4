#include "BrowseWindow.h"

#include "Accessibility.h"
#include "FilesPane.h"
#include "ListPage.h"
#include "LocalizedString.h"
#include "RestoreDialog.h"
#include "TimeMachineSettings.h"
#include "TimelinePane.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <array>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

enum Page { Reading, Panes, Empty };

// Each disk may have to spin up.
constexpr auto longestCall = 2min;

/// Whether tmutil has said by its exit status that there is no backup to be had: tmutil(1), EXIT STATUS.
bool isAnswered(int status)
{
    constexpr int noDisk = 2;
    constexpr int noDiskThere = 4;
    constexpr int noBackup = 6;
    return status == noDisk || status == noDiskThere || status == noBackup;
}

QLabel* makeWrapped(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

BrowseWindow::BrowseWindow(const Setup::Services& services, Workspace& workspace, const Places& places)
    : services_(services)
    , workspace_(workspace)
    , kept_(places.cache)
    , preview_(services_, workspace, places.cache)
    , browser_(services_, kept_, model_)
    , wanted_(places.wanted)
    , search_(new QLineEdit)
    , everywhere_(new QCheckBox(localizedString("browseAllBackups")))
    , timeline_(new TimelinePane)
    , filesPane_(new FilesPane(model_))
    , versions_(new VersionsPane(services_))
    , status_(new QLabel)
    , previewButton_(new QPushButton(localizedString("browsePreviewTitle")))
    , restoreButton_(new QPushButton(panelTitle("browseRestoreTitle")))
    , troubleBar_(new QWidget)
    , troubleLabel_(makeWrapped({}))
    , pages_(new QStackedWidget)
    , emptyLabel_(makeWrapped({}))
    , tmutil_(services.launcher, services.runLoop, services.tmutil, longestCall)
{
    setAccessibleRole(*this, QAccessible::Window);
    setWindowTitle(localizedString("browseWindowTitle"));
    QLabel* reading = makeWrapped(localizedString("browseReading"));
    reading->setAlignment(Qt::AlignCenter);
    pages_->addWidget(reading);
    pages_->addWidget(makePanes());
    pages_->addWidget(makeEmptyPage());
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeTroubleBar());
    column->addWidget(pages_, 1);
    fitToScreen();
    addKeys();
    connectPanes();
    updateSelection();
    reload();
}

QWidget* BrowseWindow::makeSearchRow()
{
    auto* bar = new QWidget;
    search_->setObjectName(u"search"_s);
    search_->setPlaceholderText(localizedString("browseSearchPrompt"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setClearButtonEnabled(true);
    everywhere_->setObjectName(u"everywhere"_s);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins({});
    row->addWidget(search_, 1);
    row->addWidget(everywhere_);
    return bar;
}

QWidget* BrowseWindow::makePanes()
{
    auto* splitter = new QSplitter;
    splitter->addWidget(timeline_);
    splitter->addWidget(filesPane_);
    splitter->addWidget(versions_);
    // In characters. The middle takes what room there is; what is at the sides can be put away.
    constexpr std::array usual{40, 92, 34};
    constexpr std::array least{20, 36, 24};
    QList<int> sizes;
    for (int pane = 0; pane < splitter->count(); ++pane) {
        const auto place = static_cast<std::size_t>(pane);
        sizes.append(usual.at(place) * fontMetrics().averageCharWidth());
        splitter->widget(pane)->setMinimumWidth(least.at(place) * fontMetrics().averageCharWidth());
        splitter->setStretchFactor(pane, pane == 1 ? 1 : 0);
        splitter->setCollapsible(pane, pane != 1);
    }
    splitter->setSizes(sizes);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins({});
    column->addWidget(makeSearchRow());
    column->addWidget(splitter, 1);
    column->addWidget(makeButtonRow());
    return page;
}

QWidget* BrowseWindow::makeButtonRow()
{
    auto* bar = new QWidget;
    status_->setObjectName(u"status"_s);
    status_->setTextFormat(Qt::PlainText);
    status_->setWordWrap(true);
    previewButton_->setObjectName(u"preview"_s);
    restoreButton_->setObjectName(u"restoreSelected"_s);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins({});
    row->addWidget(status_, 1);
    row->addWidget(previewButton_);
    row->addWidget(restoreButton_);
    return bar;
}

QWidget* BrowseWindow::makeTroubleBar()
{
    auto* again = new QPushButton(localizedString("disksTryAgainTitle"));
    again->setObjectName(u"again"_s);
    troubleLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* row = new QHBoxLayout(troubleBar_);
    row->setContentsMargins({});
    row->addWidget(troubleLabel_, 1);
    row->addWidget(again, 0, Qt::AlignTop);
    troubleBar_->hide();
    connect(again, &QPushButton::clicked, this, &BrowseWindow::reload);
    return troubleBar_;
}

QWidget* BrowseWindow::makeEmptyPage()
{
    auto* page = new QWidget;
    emptyLabel_->setObjectName(u"empty"_s);
    emptyLabel_->setAlignment(Qt::AlignCenter);
    auto* settings = new QPushButton(panelTitle("browseSettingsTitle"));
    settings->setObjectName(u"settings"_s);
    auto* column = new QVBoxLayout(page);
    column->addStretch();
    column->addWidget(emptyLabel_);
    column->addWidget(settings, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(settings, &QPushButton::clicked, this, [this] { workspace_.openURL(TimeMachineSettings::address(), {}); });
    return page;
}

void BrowseWindow::addKeys()
{
    const auto key = [this](const QKeySequence& keys, auto&& then) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, then);
    };
    key(QKeySequence::Close, [this] { close(); });
    key(Qt::Key_F5, [this] { reload(); });
    key(QKeySequence::Find, [this] { search_->setFocus(Qt::ShortcutFocusReason); });
    key(QKeyCombination(Qt::CTRL, Qt::Key_R), [this] { restore(); });
    auto* leaveSearch = new QShortcut(Qt::Key_Escape, search_);
    leaveSearch->setContext(Qt::WidgetShortcut);
    connect(leaveSearch, &QShortcut::activated, this, [this] {
        search_->clear();
        filesPane_->takeKeyboard();
    });
}

void BrowseWindow::connectPanes()
{
    const auto searchAnew = [this] { browser_.search(search_->text(), everywhere_->isChecked()); };
    connect(search_, &QLineEdit::textChanged, this, searchAnew);
    connect(search_, &QLineEdit::returnPressed, filesPane_, &FilesPane::takeKeyboard);
    connect(everywhere_, &QCheckBox::toggled, this, searchAnew);
    connect(timeline_, &TimelinePane::chosen, &browser_, &BackupBrowser::openBackup);
    connect(filesPane_, &FilesPane::folderTyped, this, [this](QString folder) {
        while (folder.endsWith(u'/'))
            folder.chop(1);
        browser_.openFolder(folder);
    });
    connect(filesPane_, &FilesPane::backAsked, &browser_, &BackupBrowser::goBack);
    connect(filesPane_, &FilesPane::upAsked, &browser_, &BackupBrowser::goUp);
    connect(filesPane_, &FilesPane::againAsked, &browser_, &BackupBrowser::refresh);
    connect(filesPane_, &FilesPane::opened, this, &BrowseWindow::open);
    connect(filesPane_, &FilesPane::previewAsked, this, &BrowseWindow::preview);
    connect(filesPane_, &FilesPane::selectionChanged, this, &BrowseWindow::updateSelection);
    connect(&browser_, &BackupBrowser::moved, this, &BrowseWindow::showMove);
    connect(&browser_, &BackupBrowser::told, filesPane_, &FilesPane::tell);
    connect(&browser_, &BackupBrowser::progressed, status_, &QLabel::setText);
    connect(&browser_, &BackupBrowser::arrived, this, [this](const QString& selected) {
        filesPane_->fitColumns();
        filesPane_->select(selected);
        openIfWanted(selected);
    });
    connect(versions_, &VersionsPane::chosen, &browser_, &BackupBrowser::reveal);
    connect(&preview_, &Preview::progressed, status_, &QLabel::setText);
    connect(previewButton_, &QPushButton::clicked, this, &BrowseWindow::preview);
    connect(restoreButton_, &QPushButton::clicked, this, &BrowseWindow::restore);
}

void BrowseWindow::fitToScreen()
{
    constexpr int columns = 170;
    constexpr int lines = 34;
    const QFontMetrics metrics = fontMetrics();
    const QSize wanted(metrics.averageCharWidth() * columns, metrics.height() * lines);
    const QSize frame(metrics.height(), 3 * metrics.height()); // of the window manager's, which is not there yet
    resize(wanted.boundedTo(screen()->availableSize() - frame));
}

void BrowseWindow::reload()
{
    tmutil_.call({u"destinationinfo"_s, u"-X"_s}, [this](const TmutilAnswer& answer) {
        disks_ = readBackupDisks(answer.output).value_or(std::vector<BackupDisk>());
    });
    tmutil_.call({u"listbackups"_s, u"-X"_s}, [this](const TmutilAnswer& answer) { takeBackups(answer); });
}

void BrowseWindow::takeBackups(const TmutilAnswer& answer)
{
    const auto backups = readBackups(answer.output);
    backups_ = backups.value_or(std::vector<Backup>());
    if (!answer.success)
        showTrouble(isAnswered(answer.status) ? QString() : answer.complaint);
    else
        showTrouble(backups ? QString() : localizedString("disksToolUnreadable"));
    showBackups();
}

void BrowseWindow::showTrouble(const QString& complaint)
{
    troubleLabel_->setText(complaint.isEmpty() ? QString() : localizedString("browseReadFailed").arg(complaint));
    troubleBar_->setVisible(!complaint.isEmpty());
}

void BrowseWindow::showBackups()
{
    titles_.clear();
    for (const Backup& backup : backups_)
        titles_.insert(backup.name, backupTitle(backup));
    model_.setBackupTitles(titles_);
    versions_->setBackupTitles(titles_);
    browser_.setBackups(backups_);
    emptyLabel_->setText(localizedString(disks_.empty() ? "browseNoDiskMessage" : "browseNoBackupMessage"));
    pages_->setCurrentIndex(backups_.empty() ? Empty : Panes);
    if (backups_.empty())
        return;
    const bool first = !browser_.current();
    timeline_->setBackups(backups_, disks_, services_.runLoop.now());
    if (!first)
        return browser_.refresh();
    filesPane_->takeKeyboard();
    openWanted();
}

void BrowseWindow::lookAt(const QString& path)
{
    wanted_ = path;
    if (!browser_.current())
        return; // it is shown with the first backups
    timeline_->choose(backups_.front().name);
    filesPane_->takeKeyboard();
    openWanted();
}

/// What the command line names is shown where it lies, a folder from inside.
void BrowseWindow::openWanted()
{
    if (wanted_.isEmpty())
        return;
    browser_.openFolder(folderAround(wanted_), wanted_);
    versions_->want(wanted_);
}

void BrowseWindow::openIfWanted(const QString& path)
{
    if (path.isEmpty() || path != wanted_)
        return;
    wanted_.clear();
    const int row = model_.rowOf(path);
    if (row >= 0 && model_.entry(row).kind == FileKind::Folder)
        browser_.openFolder(path);
}

void BrowseWindow::showMove()
{
    search_->clear();
    filesPane_->setFolder(browser_.folder());
    filesPane_->setBackEnabled(browser_.canGoBack());
    if (const Backup* current = browser_.current())
        timeline_->choose(current->name);
}

void BrowseWindow::open(int row)
{
    const FileEntry entry = model_.entry(row);
    if (!search_->text().isEmpty())
        return browser_.reveal(entry);
    if (entry.kind == FileKind::Folder)
        browser_.openFolder(entry.path);
    else
        preview();
}

std::vector<FileEntry> BrowseWindow::selection() const
{
    std::vector<FileEntry> entries;
    for (const int row : filesPane_->selectedRows())
        entries.push_back(model_.entry(row));
    return entries;
}

void BrowseWindow::updateSelection()
{
    const auto rows = filesPane_->selectedRows();
    const bool oneFile = rows.size() == 1 && model_.entry(rows.front()).kind == FileKind::File;
    previewButton_->setEnabled(oneFile);
    restoreButton_->setEnabled(!rows.empty());
    if (oneFile)
        versions_->want(model_.entry(rows.front()).path);
    else if (!rows.empty()) // while another folder is read nothing is selected
        versions_->wantNone();
}

void BrowseWindow::preview()
{
    const auto selected = selection();
    if (selected.size() == 1 && selected.front().kind == FileKind::File)
        preview_.show(browser_.backupOf(selected.front()), selected.front());
}

void BrowseWindow::restore()
{
    QStringList sources;
    QStringList backups;
    for (const FileEntry& entry : selection()) {
        backups.append(browser_.backupOf(entry));
        sources.append(backups.last() + entry.path);
    }
    if (sources.isEmpty())
        return;
    backups.removeDuplicates();
    auto* dialog = new RestoreDialog(
        services_,
        {.sources = sources, .backupTitle = backups.size() == 1 ? titles_.value(backups.first()) : QString()}, this);
    dialog->open();
}

} // namespace quillon
