#pragma once

#include "BackupSetup.h"
#include "Backups.h"
#include "Date.h"

#include <QString>
#include <QWidget>

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

} // namespace quillon
