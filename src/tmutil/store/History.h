#pragma once

#include "ResticOutput.h"
#include "RunState.h"
#include "Verification.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// What past backups have left to be remembered, in a file of the state folder. Only the process that holds the
/// worker's lock changes it. Where the file is damaged the version before it counts, or else nothing is remembered,
/// which must not keep the next backup from being made: save() puts the file aside.
class History {
public:
    explicit History(const QString& stateFolder);

    /// The destination of the last run that was begun; empty before the first.
    QString lastDestination() const;
    void setLastDestination(const QString& id);

    /// The names that this computer has had while it made backups.
    QStringList hostNames() const;
    void noteHostName(const QString& name);

    /// The end of the last completed backup there; invalid where there is none.
    QDateTime lastBackup(const QString& destinationId) const;
    void setLastBackup(const QString& destinationId, const QDateTime& date);

    /// There is nothing to prune or to verify in a new repository.
    void noteNewRepository(const QString& destinationId);

    QDateTime lastPrune(const QString& destinationId) const;
    void setLastPrune(const QString& destinationId, const QDateTime& date);

    /// The backups that were on the disk when the last one had been made, oldest first: dictionaries with "Name",
    /// "Snapshot", which is restic's identifier, and, where it is known, "BytesAdded", what that backup took of the
    /// disk beyond those before it.
    QVariantList backups(const QString& destinationId) const;
    void setBackups(const QString& destinationId, const std::vector<Snapshot>& snapshots, const QString& justMade,
                    qlonglong bytesAdded);

    void forgetBackups(const QString& destinationId, const std::vector<Snapshot>& snapshots);

    /// Since when a backup may have been made that nobody has looked at; invalid where all have been.
    QDateTime uncheckedSince(const QString& destinationId) const;
    void setUncheckedSince(const QString& destinationId, const QDateTime& date);

    /// The folders that the last backup left out for being on another file system, and whether they had been backed up
    /// before: 1 or 0.
    QVariantMap otherFileSystems(const QString& destinationId) const;
    void setOtherFileSystems(const QString& destinationId, const QVariantMap& folders);

    /// The same of those that it left out for being tagged as caches.
    QVariantMap caches(const QString& destinationId) const;
    void setCaches(const QString& destinationId, const QVariantMap& folders);

    /// When a tenth of the data, or all of it, had been verified last.
    QDateTime lastVerification(const QString& destinationId) const;
    void setLastVerification(const QString& destinationId, const QDateTime& date);
    /// The part of the data whose turn it is, and whether a verification of it was begun and did not come to its end.
    Slice nextSlice(const QString& destinationId) const;
    void setNextSlice(const QString& destinationId, const Slice& slice);
    bool isVerificationUnfinished(const QString& destinationId) const;
    void setVerificationUnfinished(const QString& destinationId, bool unfinished);

    /// What the last verification has found.
    std::optional<Damage> damage(const QString& destinationId) const;
    void setDamage(const QString& destinationId, const std::optional<Damage>& damage);

    /// As it stands in the status: the latest of those disks, or of all that are remembered, empty when the last backup
    /// on each was without fault. A history that is not readable is a failure of its own.
    QVariantMap lastFailure(const std::optional<QStringList>& destinationIds) const;
    QVariantMap lastFailure(const QString& destinationId) const;
    /// A success on one disk says nothing of the others.
    void setLastFailure(const QString& destinationId, const std::optional<LastFailure>& failure);

    /// False when it could not be written; the old contents then stand.
    bool save();

    /// A change by a process that is no worker. False when nothing was changed since a backup runs.
    static bool change(const QString& stateFolder, const std::function<void(History&)>& edit);

private:
    QVariant ofDestination(const QString& id, const QString& key) const;
    void setOfDestination(const QString& id, const QString& key, const QVariant& value);

    QString file_;
    QVariantMap contents_;
    bool damaged_;
};

} // namespace quillon
