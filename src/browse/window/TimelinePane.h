#pragma once

#include "BackupReader.h"
#include "BackupSetup.h"
#include "Contents.h"
#include "RunLoop.h"

#include <QHash>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class QComboBox;
class QLabel;
class QTreeWidget;

namespace quillon {

/// The backups of one disk by their dates, with a choice of the disk where there are several.
class TimelinePane final : public QWidget {
    Q_OBJECT

public:
    explicit TimelinePane(QWidget* parent = nullptr);

    /// What was chosen stays chosen while it is there; else the newest one is. Told by chosen() in either case.
    void setBackups(const std::vector<Backup>& backups, const std::vector<BackupDisk>& disks, Date now);
    /// Chooses a backup, on whichever disk it is.
    void choose(const QString& backup);

Q_SIGNALS:
    void chosen(const QString& backup);

private:
    void fillDisks(const std::vector<BackupDisk>& disks);
    void fillTimeline(const QString& wanted);
    QString current() const;

    QLabel* disksLabel_;
    QComboBox* disks_;
    QTreeWidget* timeline_;
    std::vector<Backup> backups_;
    Date now_;
};

/// The versions of one file in all backups, the same content once.
class VersionsPane final : public QWidget {
    Q_OBJECT

public:
    /// The services must outlive this object.
    explicit VersionsPane(const Setup::Services& services, QWidget* parent = nullptr);

    /// How backups are called, by their names. What is shown is asked for anew when it is next wanted.
    void setBackupTitles(const QHash<QString, QString>& titles);
    /// Asks for the versions of that file, once nothing else is wanted for a moment.
    void want(const QString& path);
    /// Says what to do, as long as no file is chosen.
    void wantNone();

Q_SIGNALS:
    void chosen(const quillon::FileEntry& version);

private:
    void tell(const QString& sentence);
    void ask();
    void showVersions(const QString& complaint);

    const Setup::Services& services_;
    QHash<QString, QString> titles_;
    QString path_;
    Timer delay_;
    std::unique_ptr<ToolCall> asking_;
    QLabel* heading_;
    QLabel* sentence_;
    QTreeWidget* list_;
    std::vector<FileEntry> versions_;
};

} // namespace quillon
