#include "DisksWindow.h"

#include "AlertPresenter.h"
#include "DateFormatter.h"
#include "LocalizedString.h"

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// So that a disk that was plugged in shows soon; a call costs some milliseconds.
constexpr auto diskWatchInterval = 5s;

QString lastComponent(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}

QString stateOf(const BackupDisk& disk)
{
    const QString presence = localizedString(disk.present ? "disksConnected" : "disksNotConnected");
    const QString last =
        disk.lastBackup
            ? localizedString("disksLastBackup")
                  .arg(DateFormatter::string(*disk.lastBackup, DateFormatterStyle::Medium, DateFormatterStyle::Short))
            : localizedString("disksNoBackupYet");
    return presence + u" – "_s + last;
}

/// What opens a panel ends in an ellipsis, which string tables leave to the code.
QString panelTitle(const char* key)
{
    return localizedString(key) + u'…';
}

} // namespace

DisksWindow::DisksWindow(const Services& services)
    : runLoop_(services.runLoop)
    , alerts_(services.alerts)
    , mountedDisks_(services.launcher, services.lsblk)
    , disksPage_(makeDisksPage())
    , sourcesPage_(makeSourcesPage())
    , exclusionsPage_(makeExclusionsPage())
    , troubleBar_(new QWidget)
    , troubleLabel_(new QLabel)
    , tmutil_(services.launcher, services.runLoop, services.tmutil)
{
    setWindowTitle(localizedString("disksWindowTitle"));

    auto* tabs = new QTabWidget;
    tabs->addTab(disksPage_, localizedString("disksDisksTitle"));
    tabs->addTab(sourcesPage_, localizedString("disksSourcesTitle"));
    tabs->addTab(exclusionsPage_, localizedString("disksExclusionsTitle"));

    auto* again = new QPushButton(localizedString("disksTryAgainTitle"));
    troubleLabel_->setTextFormat(Qt::PlainText);
    troubleLabel_->setWordWrap(true);
    troubleLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* trouble = new QHBoxLayout(troubleBar_);
    trouble->setContentsMargins({});
    trouble->addWidget(troubleLabel_, 1);
    trouble->addWidget(again, 0, Qt::AlignTop);
    troubleBar_->hide();

    auto* column = new QVBoxLayout(this);
    column->addWidget(troubleBar_);
    column->addWidget(tabs, 1);
    const QFontMetrics metrics = fontMetrics();
    resize(sizeHint().expandedTo({metrics.averageCharWidth() * 80, metrics.height() * 26}));

    connect(again, &QPushButton::clicked, this, &DisksWindow::reload);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    diskWatch_ = runLoop_.scheduleRepeating(diskWatchInterval, [this] { watchDisks(); });
    reload();
}

ListPage* DisksWindow::makeDisksPage()
{
    auto* page = new ListPage(localizedString("disksDisksTitle"), localizedString("disksDisksExplanation"), this);
    auto* menu = new QMenu(page);
    QPushButton* mounted = page->addButton(localizedString("disksAddDiskTitle"));
    mounted->setMenu(menu);
    QPushButton* folder = page->addButton(panelTitle("disksAddFolderTitle"));
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillDiskMenu(*menu); });
    connect(folder, &QPushButton::clicked, this, [this] {
        choose(localizedString("disksAddFolderTitle"), false, [this](const QString& path) { addDisk(path); });
    });
    connect(page, &ListPage::removeRequested, this, &DisksWindow::confirmDiskRemoval);
    return page;
}

ListPage* DisksWindow::makeSourcesPage()
{
    auto* page = new ListPage(localizedString("disksSourcesTitle"), localizedString("disksSourcesExplanation"), this);
    QPushButton* folder = page->addButton(panelTitle("disksAddFolderTitle"));
    connect(folder, &QPushButton::clicked, this, [this] {
        choose(localizedString("disksAddFolderTitle"), false, [this](const QString& path) {
            // The home folder is backed up only until a folder is named. Whoever adds one does not mean to lose it.
            if (sources_.size() == 1)
                tmutil_.call({u"addsource"_s, u"--"_s, sources_.first()}, [](const TmutilAnswer&) {});
            change({u"addsource"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(lastComponent(path)));
        });
    });
    connect(page, &ListPage::removeRequested, this, &DisksWindow::removeSource);
    return page;
}

ListPage* DisksWindow::makeExclusionsPage()
{
    auto* page =
        new ListPage(localizedString("disksExclusionsTitle"), localizedString("disksExclusionsExplanation"), this);
    for (const bool files : {false, true}) {
        const char* const key = files ? "disksAddFileTitle" : "disksAddFolderTitle";
        QPushButton* button = page->addButton(panelTitle(key));
        connect(button, &QPushButton::clicked, this, [this, key, files] {
            choose(localizedString(key), files, [this](const QString& path) {
                change({u"addexclusion"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(lastComponent(path)));
            });
        });
    }
    connect(page, &ListPage::removeRequested, this, [this](const QString& path, const QString& name) {
        change({u"removeexclusion"_s, u"--"_s, path}, localizedString("disksRemoveFailed").arg(name));
    });
    return page;
}

/// Something may have been changed by hand meanwhile.
void DisksWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && awaitedReads_ == 0 && !changing_)
        reload();
}

void DisksWindow::reload()
{
    mountedDisks_.refresh();
    read({u"destinationinfo"_s, u"-X"_s}, [this](const QByteArray& answer) { return showDisks(answer); });
    read({u"listsources"_s, u"-X"_s},
         [this](const QByteArray& answer) { return showPaths(answer, *sourcesPage_, {}); }); // at least the home folder
    read({u"listexclusions"_s, u"-X"_s}, [this](const QByteArray& answer) {
        return showPaths(answer, *exclusionsPage_, localizedString("disksNoExclusions"));
    });
}

void DisksWindow::watchDisks()
{
    if (!isVisible() || isMinimized() || awaitedReads_ > 0 || changing_ || troubleBar_->isVisible())
        return;
    mountedDisks_.refresh();
    read({u"destinationinfo"_s, u"-X"_s}, [this](const QByteArray& answer) { return showDisks(answer); });
}

void DisksWindow::read(const QStringList& arguments, const Reader& reader)
{
    ++awaitedReads_;
    tmutil_.call(arguments, [this, reader](const TmutilAnswer& answer) {
        if (!answer.success)
            trouble_ = answer.complaint;
        else if (!reader(answer.output))
            trouble_ = localizedString("disksToolUnreadable");
        if (--awaitedReads_ == 0)
            showTrouble(std::exchange(trouble_, {}));
    });
}

bool DisksWindow::showDisks(const QByteArray& answer)
{
    const auto disks = readBackupDisks(answer);
    if (!disks)
        return false;
    disks_ = *disks;
    std::vector<ListEntry> entries;
    for (const BackupDisk& disk : disks_)
        entries.push_back({.id = disk.id,
                           .title = disk.name,
                           .details = {disk.path, stateOf(disk)},
                           .symbol = u"externaldrive"_s,
                           .dimmed = !disk.present});
    disksPage_->setEntries(entries, localizedString("disksNoDisks"));
    return true;
}

bool DisksWindow::showPaths(const QByteArray& answer, ListPage& page, const QString& emptyText)
{
    const auto paths = readPaths(answer);
    if (!paths)
        return false;
    if (&page == sourcesPage_)
        sources_ = *paths;
    // Whether it is a file or a folder is not asked here, where a disk that hangs would stop the window.
    const QString symbol = &page == sourcesPage_ ? u"folder"_s : u"minus.circle"_s;
    std::vector<ListEntry> entries;
    for (const QString& path : *paths) {
        entries.push_back({.id = path, .title = lastComponent(path), .details = {path}, .symbol = symbol});
    }
    page.setEntries(entries, emptyText);
    return true;
}

void DisksWindow::showTrouble(const QString& line)
{
    troubleLabel_->setText(line.isEmpty() ? QString() : localizedString("disksReadFailed").arg(line));
    troubleBar_->setVisible(!line.isEmpty());
}

void DisksWindow::change(const QStringList& arguments, const QString& headline)
{
    const auto setChanging = [this](bool changing) {
        changing_ = changing;
        for (ListPage* page : {disksPage_, sourcesPage_, exclusionsPage_})
            page->setChangeable(!changing);
    };
    setChanging(true);
    tmutil_.call(arguments, [this, setChanging, headline](const TmutilAnswer& answer) {
        setChanging(false);
        if (!answer.success)
            alerts_.present({.style = AlertStyle::Warning,
                             .messageText = headline,
                             .informativeText = answer.complaint,
                             .buttons = {localizedString("disksOkTitle")}},
                            {});
        reload();
    });
}

void DisksWindow::fillDiskMenu(QMenu& menu)
{
    menu.clear();
    for (const MountedDisk& disk : mountedDisks_.list()) {
        if (std::ranges::find(disks_, disk.path, &BackupDisk::path) != disks_.end())
            continue;
        QString title = disk.name;
        if (disk.bytesFree)
            title = localizedString("disksFree").arg(title, QLocale().formattedDataSize(*disk.bytesFree, 0));
        QAction* action = menu.addAction(title.replace('&'_L1, "&&"_L1));
        connect(action, &QAction::triggered, this, [this, path = disk.path] { addDisk(path); });
    }
    if (menu.isEmpty())
        menu.addAction(localizedString("disksNoOtherDisk"))->setEnabled(false);
}

void DisksWindow::addDisk(const QString& path)
{
    change({u"setdestination"_s, u"-a"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(lastComponent(path)));
}

void DisksWindow::confirmDiskRemoval(const QString& id, const QString& name)
{
    confirm(localizedString("disksRemoveAlertMessage").arg(name), localizedString("disksRemoveAlertInformative"),
            [this, id, name] {
                change({u"removedestination"_s, u"--"_s, id}, localizedString("disksRemoveFailed").arg(name));
            });
}

void DisksWindow::removeSource(const QString& path, const QString& name)
{
    const auto remove = [this, path, name] {
        change({u"removesource"_s, u"--"_s, path}, localizedString("disksRemoveFailed").arg(name));
    };
    // The home folder takes the place of the last folder that was named. Nobody expects that much.
    if (sources_.size() == 1 && path != QDir::homePath())
        confirm(localizedString("disksHomeAlertMessage"), localizedString("disksHomeAlertInformative").arg(name),
                remove);
    else
        remove();
}

void DisksWindow::confirm(const QString& message, const QString& informative, const std::function<void()>& remove)
{
    alerts_.present({.style = AlertStyle::Warning,
                     .messageText = message,
                     .informativeText = informative,
                     .buttons = {localizedString("disksCancelTitle"), localizedString("disksRemoveTitle")},
                     .destructiveButton = 1},
                    [remove](int response) {
                        if (response == alertSecondButtonReturn)
                            remove();
                    });
}

void DisksWindow::choose(const QString& title, bool files, const std::function<void(const QString& path)>& take)
{
    auto* dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(files ? QFileDialog::ExistingFile : QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly, !files);
    connect(dialog, &QFileDialog::fileSelected, this, take);
    dialog->open();
}

} // namespace quillon
