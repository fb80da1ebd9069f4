#pragma once

#include "BackupSetup.h"
#include "ListPage.h"
#include "MountedDisks.h"
#include "RunLoop.h"
#include "TmutilClient.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class QLabel;
class QMenu;

namespace quillon {

class AlertPresenter;

/// The window of Time Machine's settings: backup disks, the folders backed up, what is left out. It holds nothing of
/// its own: what it shows is what tmutil tells, and each change is a call of tmutil followed by reading anew.
class DisksWindow final : public QWidget {
    Q_OBJECT

public:
    /// All outlive the window.
    struct Services {
        TaskLauncher& launcher;
        RunLoop& runLoop;
        AlertPresenter& alerts;
        QString tmutil; ///< path of the tool
        QString lsblk;  ///< path of the tool that lists mounted disks
    };

    explicit DisksWindow(const Services& services);

protected:
    void changeEvent(QEvent* event) override;

private:
    using Reader = std::function<bool(const QByteArray& answer)>;

    ListPage* makeDisksPage();
    ListPage* makeSourcesPage();
    ListPage* makeExclusionsPage();

    void reload();
    void watchDisks();
    void read(const QStringList& arguments, const Reader& reader);
    bool showDisks(const QByteArray& answer);
    bool showPaths(const QByteArray& answer, ListPage& page, const QString& emptyText);
    void showTrouble(const QString& line);
    void change(const QStringList& arguments, const QString& headline);

    void fillDiskMenu(QMenu& menu);
    void addDisk(const QString& path);
    void confirmDiskRemoval(const QString& id, const QString& name);
    void removeSource(const QString& path, const QString& name);
    /// Asks ahead of a removal, which is made if the user says so.
    void confirm(const QString& message, const QString& informative, const std::function<void()>& remove);
    void choose(const QString& title, bool files, const std::function<void(const QString& path)>& take);

    RunLoop& runLoop_;
    AlertPresenter& alerts_;
    MountedDisks mountedDisks_;
    std::vector<BackupDisk> disks_;
    QStringList sources_;
    ListPage* disksPage_;
    ListPage* sourcesPage_;
    ListPage* exclusionsPage_;
    QWidget* troubleBar_;
    QLabel* troubleLabel_;
    QString trouble_;      ///< of the answers since the last time all were in
    int awaitedReads_ = 0; ///< answers still to come
    bool changing_ = false;
    Timer diskWatch_;
    TmutilClient tmutil_; ///< last, so that no answer finds half a window
};

} // namespace quillon
