#include "History.h"

#include "Paths.h"
#include "RunState.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QHash>
#include <QThread>

#include <algorithm>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patienceWithLock = 5s;

} // namespace

History::History(const QString& stateFolder)
    : file_(stateFolder + "/history.plist"_L1)
{
    const auto kept = readKeptPropertyList(file_);
    damaged_ = kept.damaged;
    contents_ = kept.contents.value_or(QVariantMap());
    // Earlier versions knew one failure for all disks.
    if (const QVariantMap only = contents_.take(u"LastFailure"_s).toMap(); !only.isEmpty())
        setOfDestination(only.value(u"DestinationID"_s).toString(), u"LastFailure"_s, only);
}

QString History::lastDestination() const
{
    return contents_.value(u"LastDestination"_s).toString();
}

QStringList History::hostNames() const
{
    return contents_.value(u"HostNames"_s).toStringList();
}

void History::noteHostName(const QString& name)
{
    QVariantList names = contents_.value(u"HostNames"_s).toList();
    if (names.contains(name))
        return;
    names.append(name);
    contents_.insert(u"HostNames"_s, names);
}

void History::setLastDestination(const QString& id)
{
    contents_.insert(u"LastDestination"_s, id);
}

QDateTime History::lastBackup(const QString& destinationId) const
{
    return ofDestination(destinationId, u"LastBackup"_s).toDateTime();
}

void History::setLastBackup(const QString& destinationId, const QDateTime& date)
{
    setOfDestination(destinationId, u"LastBackup"_s, date.isValid() ? QVariant(date.toUTC()) : QVariant());
}

void History::noteNewRepository(const QString& destinationId)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    setLastPrune(destinationId, now);
    setLastVerification(destinationId, now);
    setNextSlice(destinationId, {});
    for (const QString& key : {u"Damage"_s, u"UncheckedSince"_s, u"VerificationUnfinished"_s, u"Backups"_s,
                               u"OtherFileSystems"_s, u"Caches"_s})
        setOfDestination(destinationId, key, {});
}

QDateTime History::lastPrune(const QString& destinationId) const
{
    return ofDestination(destinationId, u"LastPrune"_s).toDateTime();
}

void History::setLastPrune(const QString& destinationId, const QDateTime& date)
{
    setOfDestination(destinationId, u"LastPrune"_s, date.toUTC());
}

QVariantList History::backups(const QString& destinationId) const
{
    return ofDestination(destinationId, u"Backups"_s).toList();
}

void History::setBackups(const QString& destinationId, const std::vector<Snapshot>& snapshots, const QString& justMade,
                         qlonglong bytesAdded)
{
    QHash<QString, QVariant> sizes;
    for (const QVariant& backup : backups(destinationId)) {
        const QVariantMap one = backup.toMap();
        if (const QVariant size = one.value(u"BytesAdded"_s); size.isValid())
            sizes.insert(one.value(u"Name"_s).toString(), size);
    }
    sizes.insert(justMade, bytesAdded);
    QVariantList list;
    for (const Snapshot& snapshot : snapshots) {
        QVariantMap one{{u"Name"_s, snapshot.name()}, {u"Snapshot"_s, snapshot.id}};
        if (sizes.contains(snapshot.name()))
            one.insert(u"BytesAdded"_s, sizes.value(snapshot.name()));
        list.append(one);
    }
    setOfDestination(destinationId, u"Backups"_s, list);
}

void History::forgetBackups(const QString& destinationId, const std::vector<Snapshot>& snapshots)
{
    QVariantList left = backups(destinationId);
    left.removeIf([&snapshots](const QVariant& one) {
        const QString id = one.toMap().value(u"Snapshot"_s).toString();
        return std::ranges::find(snapshots, id, &Snapshot::id) != snapshots.end();
    });
    setOfDestination(destinationId, u"Backups"_s, left);
}

QDateTime History::uncheckedSince(const QString& destinationId) const
{
    return ofDestination(destinationId, u"UncheckedSince"_s).toDateTime();
}

void History::setUncheckedSince(const QString& destinationId, const QDateTime& date)
{
    setOfDestination(destinationId, u"UncheckedSince"_s, date.isValid() ? QVariant(date.toUTC()) : QVariant());
}

QVariantMap History::otherFileSystems(const QString& destinationId) const
{
    return ofDestination(destinationId, u"OtherFileSystems"_s).toMap();
}

void History::setOtherFileSystems(const QString& destinationId, const QVariantMap& folders)
{
    setOfDestination(destinationId, u"OtherFileSystems"_s, folders.isEmpty() ? QVariant() : QVariant(folders));
}

QVariantMap History::caches(const QString& destinationId) const
{
    return ofDestination(destinationId, u"Caches"_s).toMap();
}

void History::setCaches(const QString& destinationId, const QVariantMap& folders)
{
    setOfDestination(destinationId, u"Caches"_s, folders.isEmpty() ? QVariant() : QVariant(folders));
}

QVariantMap History::lastFailure(const std::optional<QStringList>& destinationIds) const
{
    if (damaged_)
        return LastFailure{statusDate(QFileInfo(file_).lastModified()),
                           {},
                           u"HistoryUnreadable"_s,
                           u"The history \"%1\" cannot be read."_s.arg(file_)}
            .toDictionary();
    QVariantMap latest;
    const QVariantMap destinations = contents_.value(u"Destinations"_s).toMap();
    for (const QString& id : destinations.keys()) {
        if (destinationIds && !destinationIds->contains(id))
            continue;
        // The dates are written so that they sort as texts.
        if (const QVariantMap one = lastFailure(id);
            latest.value(u"Date"_s).toString() < one.value(u"Date"_s).toString())
            latest = one;
    }
    return latest;
}

QVariantMap History::lastFailure(const QString& destinationId) const
{
    QVariantMap failure = ofDestination(destinationId, u"LastFailure"_s).toMap();
    const auto found = damage(destinationId);
    if (!found)
        return failure;
    // It stands beside what the last backup met with: neither may hide the other.
    LastFailure both{std::max(found->date, failure.value(u"Date"_s).toString()), destinationId, u"Damaged"_s,
                     (found->description() + u' ' + failure.value(u"Description"_s).toString()).trimmed()};
    both.unreadFiles = failure.value(u"UnreadFiles"_s).toLongLong();
    failure = both.toDictionary();
    failure.insert(u"AffectedBackups"_s, QVariantList(found->backups.begin(), found->backups.end()));
    return failure;
}

QDateTime History::lastVerification(const QString& destinationId) const
{
    return ofDestination(destinationId, u"LastVerification"_s).toDateTime();
}

void History::setLastVerification(const QString& destinationId, const QDateTime& date)
{
    setOfDestination(destinationId, u"LastVerification"_s, date.toUTC());
}

Slice History::nextSlice(const QString& destinationId) const
{
    return Slice::fromDictionary(ofDestination(destinationId, u"NextSlice"_s).toMap());
}

void History::setNextSlice(const QString& destinationId, const Slice& slice)
{
    setOfDestination(destinationId, u"NextSlice"_s, slice.toDictionary());
}

bool History::isVerificationUnfinished(const QString& destinationId) const
{
    return ofDestination(destinationId, u"VerificationUnfinished"_s).toBool();
}

void History::setVerificationUnfinished(const QString& destinationId, bool unfinished)
{
    setOfDestination(destinationId, u"VerificationUnfinished"_s, unfinished ? qlonglong{1} : QVariant());
}

std::optional<Damage> History::damage(const QString& destinationId) const
{
    return Damage::fromDictionary(ofDestination(destinationId, u"Damage"_s).toMap());
}

void History::setDamage(const QString& destinationId, const std::optional<Damage>& damage)
{
    setOfDestination(destinationId, u"Damage"_s, damage ? damage->toDictionary() : QVariant());
}

bool History::change(const QString& stateFolder, const std::function<void(History&)>& edit)
{
    needPrivateFolder(stateFolder);
    ProcessLock lock(RunState::lockPath(stateFolder));
    const QDeadlineTimer limit(patienceWithLock); // most who hold it do so for a moment
    while (!lock.tryLock()) {
        if (limit.hasExpired())
            return false;
        QThread::msleep(20);
    }
    History history(stateFolder);
    edit(history);
    return history.save();
}

void History::setLastFailure(const QString& destinationId, const std::optional<LastFailure>& failure)
{
    setOfDestination(destinationId, u"LastFailure"_s, failure ? failure->toDictionary() : QVariant());
}

bool History::save()
{
    damaged_ = false;
    return writeKeptPropertyList(file_, contents_);
}

QVariant History::ofDestination(const QString& id, const QString& key) const
{
    return contents_.value(u"Destinations"_s).toMap().value(id).toMap().value(key);
}

void History::setOfDestination(const QString& id, const QString& key, const QVariant& value)
{
    QVariantMap all = contents_.value(u"Destinations"_s).toMap();
    QVariantMap one = all.value(id).toMap();
    if (value.isValid())
        one.insert(key, value);
    else
        one.remove(key);
    all.insert(id, one);
    contents_.insert(u"Destinations"_s, all);
}

} // namespace quillon
