#pragma once

#include <QList>
#include <QMenu>
#include <QString>

namespace quillon {

/// Submenu of the backup-now item: which disk to back up to. Main thread only.
class BackupDisksMenu final : public QMenu {
    Q_OBJECT

public:
    struct Entry {
        QString identifier; ///< of the destination
        QString title;

        bool operator==(const Entry&) const = default;
    };

    /// The parent is the menu that it opens from.
    explicit BackupDisksMenu(QWidget* parent);

    /// What it offers beside the choice of the system, once it has been closed: a click is meant for what was there.
    void setEntries(const QList<Entry>& entries);

Q_SIGNALS:
    void systemChoiceClicked();
    void diskClicked(const QString& identifier);

private:
    void fill();

    QList<Entry> wanted_;
    QList<Entry> entries_;
};

} // namespace quillon
