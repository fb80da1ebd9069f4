#include "BackupBrowser.h"

#include "BackupSetup.h"
#include "FileLock.h"
#include "LocalizedString.h"
#include "Text.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QUrl>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::size_t longestHistory = 100;

// Of what is kept a search takes moments; the tool is asked once somebody pauses.
constexpr auto typingPause = 400ms;
constexpr int foundAtATime = 500; // names

} // namespace

BackupBrowser::BackupBrowser(const Setup::Services& services, const ListingCacheFolder& kept, FilesModel& model)
    : services_(services)
    , kept_(kept)
    , model_(model)
{
}

void BackupBrowser::setBackups(const std::vector<Backup>& backups)
{
    backups_ = backups;
    if (reader_ && std::ranges::find(backups_, reader_->backup().name, &Backup::name) == backups_.end()) {
        later_.reset();
        reader_.reset();
    }
    std::erase_if(history_, [this](const Place& place) {
        return std::ranges::find(backups_, place.backup, &Backup::name) == backups_.end();
    });
}

QString BackupBrowser::backupOf(const FileEntry& file) const
{
    return file.backup.isEmpty() && reader_ ? reader_->backup().name : file.backup;
}

void BackupBrowser::openBackup(const QString& name)
{
    if (reader_ && reader_->backup().name == name)
        return;
    remember();
    read(name);
    if (typed_.isEmpty())
        list();
    else
        search(typed_, everywhere_);
}

void BackupBrowser::openFolder(const QString& folder, const QString& selected)
{
    if (!reader_)
        return;
    if (folder != folder_)
        remember();
    if (const int row = model_.rowOf(folder); row >= 0 && model_.since(row) == Since::Gone)
        gone_ = folder;
    if (folder_.isEmpty() && !folderAround(folder).isEmpty())
        root_ = folder;
    folder_ = folder;
    selected_ = selected;
    list();
}

void BackupBrowser::reveal(const FileEntry& file)
{
    remember();
    const QString backup = backupOf(file);
    if (!reader_ || reader_->backup().name != backup)
        read(backup);
    folder_ = file.path == root_ ? QString() : folderAround(file.path);
    selected_ = file.path;
    list();
}

void BackupBrowser::goBack()
{
    if (history_.empty())
        return;
    const Place place = history_.back();
    history_.pop_back();
    selected_ = std::exchange(folder_, place.folder);
    if (!reader_ || reader_->backup().name != place.backup)
        read(place.backup);
    list();
}

void BackupBrowser::goUp()
{
    if (folder_.isEmpty())
        return;
    const QString left = folder_;
    openFolder(left == root_ ? QString() : folderAround(left), left);
}

void BackupBrowser::refresh()
{
    if (reader_)
        read(reader_->backup().name);
    if (typed_.isEmpty())
        list();
    else
        search(typed_, everywhere_);
}

void BackupBrowser::read(const QString& backup)
{
    const auto found = std::ranges::find(backups_, backup, &Backup::name);
    if (found == backups_.end())
        return;
    reader_ = std::make_unique<BackupReader>(services_, kept_, *found);
    gone_.clear();
    const Backup* const later = nextLater(backups_, *found);
    later_ = later ? std::make_unique<BackupReader>(services_, kept_, *later) : nullptr;
    Q_EMIT progressed({});
}

void BackupBrowser::remember()
{
    if (!reader_)
        return;
    history_.push_back({reader_->backup().name, folder_});
    if (history_.size() > longestHistory)
        history_.erase(history_.begin());
}

void BackupBrowser::list()
{
    searching_.reset();
    delay_.invalidate();
    typed_.clear();
    if (!reader_)
        return;
    model_.showFolder(folder_, {});
    Q_EMIT told(localizedString("browseReading"));
    Q_EMIT moved();
    reader_->list(folder_, [this](const std::vector<FileEntry>& files, const QString& complaint) {
        if (typed_.isEmpty()) // else a search has taken its place
            take(files, complaint);
    });
}

void BackupBrowser::take(std::vector<FileEntry> files, const QString& complaint)
{
    tellEnd("browseEmptyFolder", complaint);
    if (!complaint.isEmpty())
        return;
    model_.showFolder(folder_, std::move(files));
    Q_EMIT arrived(std::exchange(selected_, {}));
    askWhatBecame();
    reader_->fill([this](qint64 entries, bool done) { showFilling(entries, done); });
}

void BackupBrowser::tellEnd(const char* sentence, const QString& complaint)
{
    if (complaint.isEmpty())
        Q_EMIT told(localizedString(sentence));
    else
        Q_EMIT told(localizedString("browseReadFailed").arg(complaint), true);
}

void BackupBrowser::askWhatBecame()
{
    if (!later_ || model_.files().empty())
        return;
    if (!gone_.isEmpty() && (folder_ + u'/').startsWith(gone_ + u'/'))
        return model_.setChanges(std::vector(model_.files().size(), Since::Gone));
    later_->list(folder_, [this](const std::vector<FileEntry>& later, const QString& complaint) {
        if (complaint.isEmpty() && typed_.isEmpty())
            model_.setChanges(changesSince(model_.files(), later));
    });
}

void BackupBrowser::showFilling(qint64 entries, bool done)
{
    Q_EMIT progressed(done ? QString() : localizedString("browseFilling").arg(QLocale().toString(entries)));
}

void BackupBrowser::search(const QString& typed, bool everywhere)
{
    searching_.reset();
    delay_.invalidate();
    if (typed.trimmed().isEmpty()) {
        if (!typed_.isEmpty())
            list();
        return;
    }
    if (!reader_)
        return;
    typed_ = typed;
    everywhere_ = everywhere;
    if (!everywhere && reader_->isWhole())
        return searchKept(typed);
    model_.showFound(everywhere ? FilesModel::Kind::FoundEverywhere : FilesModel::Kind::FoundHere);
    Q_EMIT told(localizedString("browseSearching"));
    delay_ =
        services_.runLoop.scheduleAfter(typingPause, [this, typed, everywhere] { askForNames(typed, everywhere); });
}

void BackupBrowser::searchKept(const QString& typed)
{
    Q_EMIT told(localizedString("browseNothingFound"));
    model_.showFound(FilesModel::Kind::FoundHere, [this, pattern = namePattern(typed), behind = qint64{0}]() mutable {
        auto [files, next] = reader_->search(pattern, behind, foundAtATime);
        behind = next;
        return files;
    });
    model_.fetchMore({});
    Q_EMIT arrived({});
}

void BackupBrowser::askForNames(const QString& typed, bool everywhere)
{
    QStringList arguments{u"findfiles"_s, u"--json"_s};
    if (!everywhere)
        arguments << u"-b"_s << reader_->backup().name;
    found_.clear();
    searching_ = std::make_unique<ToolCall>(
        services_, arguments << u"--"_s << typed.trimmed(),
        ToolCall::Handlers{.line =
                               [this](const QByteArray& line) {
                                   auto entry = readFileLine(line);
                                   if (!entry)
                                       return false;
                                   found_.push_back(std::move(*entry));
                                   if (found_.size() >= foundAtATime)
                                       model_.append(std::exchange(found_, {}));
                                   return true;
                               },
                           .ended = [this](const QString& complaint) { endSearch(complaint); }});
}

void BackupBrowser::endSearch(const QString& complaint)
{
    searching_.reset();
    model_.append(std::exchange(found_, {}));
    tellEnd("browseNothingFound", complaint);
    Q_EMIT arrived({});
}

namespace {

constexpr auto previewPrefix = "preview-"_L1;

} // namespace

Preview::Preview(const Setup::Services& services, Workspace& workspace, QString folder)
    : services_(services)
    , workspace_(workspace)
    , folder_(std::move(folder))
{
    const QDir kept(folder_);
    for (const QString& name : kept.entryList({previewPrefix + u'*'}, QDir::Dirs | QDir::NoSymLinks))
        QDir(kept.filePath(name)).removeRecursively();
}

void Preview::show(const QString& backup, const FileEntry& file)
{
    const QString name = shownName(file.path);
    fetching_.reset();
    if (!copies_ && makePrivateFolder(folder_))
        copies_.emplace(folder_ + u'/' + previewPrefix + "XXXXXX"_L1);
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

} // namespace quillon
