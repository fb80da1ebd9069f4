#pragma once

#include "BackupReader.h"
#include "FilesModel.h"
#include "Services.h"

#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// Moves through the backups: fills the model with a folder as it was then, with what became of its files since, or
/// with what a search finds.
class BackupBrowser final : public QObject {
    Q_OBJECT

public:
    /// All outlive this object.
    BackupBrowser(const Setup::Services& services, const ListingCacheFolder& kept, FilesModel& model);

    /// Newest first. What is shown stays as it is.
    void setBackups(const std::vector<Backup>& backups);
    const std::vector<Backup>& backups() const { return backups_; }
    /// The backup that is shown; null where there is none.
    const Backup* current() const { return reader_ ? &reader_->backup() : nullptr; }
    /// The backup that an entry of the model is in.
    QString backupOf(const FileEntry& file) const;
    QString folder() const { return folder_; }
    bool canGoBack() const { return !history_.empty(); }

    /// Shows that backup at the folder that is shown now.
    void openBackup(const QString& name);
    /// Shows the folder; once it is there, `selected` is told by arrived().
    void openFolder(const QString& folder, const QString& selected = {});
    /// Shows where that entry lies, in its own backup.
    void reveal(const FileEntry& file);
    void goBack();
    void goUp();
    /// Asks anew for what is shown.
    void refresh();

    /// Names in this backup or in all; an empty text shows the folder again.
    void search(const QString& typed, bool everywhere);

Q_SIGNALS:
    /// Another backup or folder is shown from now on.
    void moved();
    /// A sentence to stand where there are no rows, and whether it says what went wrong.
    void told(const QString& sentence, bool hasFailed = false);
    /// The rows are there; the path is to be selected, if it is among them.
    void arrived(const QString& selected);
    /// A line on what goes on behind, or nothing.
    void progressed(const QString& line);

private:
    struct Place {
        QString backup;
        QString folder;
    };

    void read(const QString& backup);
    void remember();
    void list();
    void take(std::vector<FileEntry> files, const QString& complaint);
    void tellEnd(const char* sentence, const QString& complaint);
    void askWhatBecame();
    void showFilling(qint64 entries, bool done);
    void searchKept(const QString& typed);
    void askForNames(const QString& typed, bool everywhere);
    void endSearch(const QString& complaint);

    const Setup::Services& services_;
    const ListingCacheFolder& kept_;
    FilesModel& model_;
    std::vector<Backup> backups_;
    std::unique_ptr<BackupReader> reader_;
    std::unique_ptr<BackupReader> later_; ///< of the next later backup; null where there is none
    QString folder_;
    QString selected_;
    QString root_; ///< a folder that stands in the outermost one although it lies deeper
    QString gone_; ///< a folder that the later backup has no more
    std::vector<Place> history_;
    std::vector<FileEntry> found_; ///< not in the model yet
    QString typed_;
    bool everywhere_ = false;
    Timer delay_;
    std::unique_ptr<ToolCall> searching_;
};

/// Shows files of a backup in the programs that the desktop has for them: copies that nobody can write to, in a folder
/// for the user alone, gone with this.
class Preview final : public QObject {
    Q_OBJECT

public:
    /// All outlive this object. `folder` is where the copies are put; what an earlier program left there is removed.
    Preview(const Setup::Services& services, Workspace& workspace, QString folder);

    /// In place of one that is still being fetched.
    void show(const QString& backup, const FileEntry& file);

Q_SIGNALS:
    /// A line on what is under way, or nothing.
    void progressed(const QString& line);

private:
    void open(const QString& name, const QString& copy);
    void fail(const QString& name, const QString& complaint);

    const Setup::Services& services_;
    Workspace& workspace_;
    QString folder_;
    std::optional<QTemporaryDir> copies_;
    int count_ = 0;
    std::unique_ptr<ToolCall> fetching_;
};

} // namespace quillon
