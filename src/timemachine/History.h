#pragma once

#include "LastFailure.h"

#include <QDateTime>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// What past backups have left to be remembered, in a file of the state folder. Only the process that holds the
/// worker's lock changes it.
class History {
public:
    explicit History(const QString& stateFolder);

    /// False when the file is damaged or cannot be read. Past runs are then forgotten, which must not keep the next
    /// backup from being made: save() sets the file aside.
    bool isReadable() const { return readable_; }

    /// The destination of the last run that was begun; empty before the first.
    QString lastDestination() const;
    void setLastDestination(const QString& id);

    /// The end of the last completed backup there; invalid where there is none.
    QDateTime lastBackup(const QString& destinationId) const;
    void setLastBackup(const QString& destinationId, const QDateTime& date);

    QDateTime lastPrune(const QString& destinationId) const;
    void setLastPrune(const QString& destinationId, const QDateTime& date);

    /// As it stands in the status: empty when the last backup was without fault; a history that is not readable is a
    /// failure of its own.
    QVariantMap lastFailure() const;
    void setLastFailure(const std::optional<LastFailure>& failure);

    /// False when it could not be written; the old contents then stand.
    bool save();

private:
    QVariant ofDestination(const QString& id, const QString& key) const;
    void setOfDestination(const QString& id, const QString& key, const QVariant& value);

    QString file_;
    QString damagedFile_;
    QVariantMap contents_;
    bool readable_;
};

} // namespace quillon
