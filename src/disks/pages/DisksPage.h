#pragma once

#include "BackupSetup.h"
#include "ListPage.h"
#include "Setup.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

class QLabel;
class QMenu;

namespace quillon {

/// The backup disks and places on servers: what is on them, what went wrong with them, and whether the user has their
/// recovery keys.
class DisksPage final : public ListPage {
    Q_OBJECT

public:
    /// The setup must outlive this object. `lsblk` is the path of the tool that lists mounted disks.
    DisksPage(Setup& setup, const QString& lsblk, QWidget* parent = nullptr);

    void reload();

private:
    QWidget* makeKeyBar();
    bool take(const QByteArray& answer);
    void showDisks();
    void measure();
    void fillMenu(QMenu& menu);
    void add(const QString& path);
    void addPlace();
    void editPlace(const QString& id);
    QStringList ids() const;
    void confirmRemoval(const QString& id, const QString& name);
    const BackupDisk* diskWithoutKey() const;
    void offerRecoveryKey(const BackupDisk& disk);
    void showRecoveryKey(const BackupDisk& disk, const RecoveryKey& key);

    Setup& setup_;
    MountedDisks mountedDisks_;
    std::vector<BackupDisk> disks_;
    std::optional<QStringList> idsBeforeAddition_; ///< until the disk that was added is seen
    std::map<QString, qint64> taken_;              ///< bytes of backups, by the disk's identifier
    QStringList measured_;                         ///< what taken_ tells of, or will
    QWidget* keyBar_;
    QLabel* keyLabel_;
    TmutilClient usage_; ///< of its own, since it may take long; last, so that no answer finds half a page
};

} // namespace quillon
