#include "History.h"

#include "PropertyListFile.h"

namespace quillon {

using namespace Qt::StringLiterals;

// A damaged file costs the memory of past runs, not a backup: it counts as empty.
History::History(const QString& stateFolder)
    : file_(stateFolder + "/history.plist"_L1)
    , contents_(readPropertyListFile(file_).value_or(QVariantMap()))
{
}

QString History::lastDestination() const
{
    return contents_.value(u"LastDestination"_s).toString();
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
    setOfDestination(destinationId, u"LastBackup"_s, date.toUTC());
}

QDateTime History::lastPrune(const QString& destinationId) const
{
    return ofDestination(destinationId, u"LastPrune"_s).toDateTime();
}

void History::setLastPrune(const QString& destinationId, const QDateTime& date)
{
    setOfDestination(destinationId, u"LastPrune"_s, date.toUTC());
}

QVariantMap History::lastFailure() const
{
    return contents_.value(u"LastFailure"_s).toMap();
}

void History::setLastFailure(const std::optional<LastFailure>& failure)
{
    if (failure)
        contents_.insert(u"LastFailure"_s, failure->toDictionary());
    else
        contents_.remove(u"LastFailure"_s);
}

bool History::save() const
{
    return writePropertyListFile(file_, contents_);
}

QVariant History::ofDestination(const QString& id, const QString& key) const
{
    return contents_.value(u"Destinations"_s).toMap().value(id).toMap().value(key);
}

void History::setOfDestination(const QString& id, const QString& key, const QVariant& value)
{
    QVariantMap all = contents_.value(u"Destinations"_s).toMap();
    QVariantMap one = all.value(id).toMap();
    one.insert(key, value);
    all.insert(id, one);
    contents_.insert(u"Destinations"_s, all);
}

} // namespace quillon
