#pragma once

#include "BackupBrowser.h"
#include "BackupSetup.h"
#include "FilesModel.h"
#include "FilesPane.h"
#include "Setup.h"

#include <QHash>
#include <QString>
#include <QWidget>

#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace quillon {

class TimelinePane;
class VersionsPane;

/// The window in which backups are looked through: a timeline, the folder as it was then, the versions of a file, a
/// search; and what is chosen is restored. What it shows is what tmutil tells.
class BrowseWindow final : public QWidget {
    Q_OBJECT

public:
    struct Places {
        QString cache;  ///< folder for what is kept of listings, and for copies that are shown
        QString wanted; ///< what to show first, an absolute path; may be empty
    };

    /// Services and workspace must outlive this object.
    BrowseWindow(const Setup::Services& services, Workspace& workspace, const Places& places);

    /// Shows an absolute path as the newest backup has it.
    void lookAt(const QString& path);

private:
    QWidget* makeSearchRow();
    QWidget* makePanes();
    QWidget* makeButtonRow();
    QWidget* makeTroubleBar();
    QWidget* makeEmptyPage();
    void addKeys();
    void connectPanes();
    void fitToScreen();

    void reload();
    void takeBackups(const TmutilAnswer& answer);
    void showTrouble(const QString& complaint);
    void showBackups();
    void openWanted();
    void openIfWanted(const QString& path);
    void showMove();
    void open(int row);
    std::vector<FileEntry> selection() const;
    void updateSelection();
    void preview();
    void restore();

    Setup::Services services_;
    Workspace& workspace_;
    ListingCacheFolder kept_;
    Preview preview_;
    FilesModel model_;
    BackupBrowser browser_;
    std::vector<Backup> backups_; ///< as told last
    std::vector<BackupDisk> disks_;
    QHash<QString, QString> titles_; ///< of backups, by their names
    QString wanted_;                 ///< until it is shown

    QLineEdit* search_;
    QCheckBox* everywhere_;
    TimelinePane* timeline_;
    FilesPane* filesPane_;
    VersionsPane* versions_;
    QLabel* status_;
    QPushButton* previewButton_;
    QPushButton* restoreButton_;
    QWidget* troubleBar_;
    QLabel* troubleLabel_;
    QStackedWidget* pages_;
    QLabel* emptyLabel_;
    TmutilClient tmutil_; ///< last, so that no answer finds half a window
};

} // namespace quillon
