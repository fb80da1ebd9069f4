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

    /// The destination of the last run that was begun; empty before the first.
    QString lastDestination() const;
    void setLastDestination(const QString& id);

    /// The end of the last completed backup there; invalid where there is none.
    QDateTime lastBackup(const QString& destinationId) const;
    void setLastBackup(const QString& destinationId, const QDateTime& date);

    QDateTime lastPrune(const QString& destinationId) const;
    void setLastPrune(const QString& destinationId, const QDateTime& date);

    /// As it stands in the status: empty when the last backup was without fault.
    QVariantMap lastFailure() const;
    void setLastFailure(const std::optional<LastFailure>& failure);

    /// False when it could not be written; the old contents then stand.
    bool save() const;

private:
    QVariant ofDestination(const QString& id, const QString& key) const;
    void setOfDestination(const QString& id, const QString& key, const QVariant& value);

    QString file_;
    QVariantMap contents_;
};

} // namespace quillon
