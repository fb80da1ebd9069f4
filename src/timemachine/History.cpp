#include "History.h"

#include "PropertyListFile.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace quillon {

using namespace Qt::StringLiterals;

History::History(const QString& stateFolder)
    : file_(stateFolder + "/history.plist"_L1)
    , damagedFile_(stateFolder + "/history-damaged.plist"_L1)
{
    const auto contents = readPropertyListFile(file_);
    readable_ = contents.has_value();
    contents_ = contents.value_or(QVariantMap());
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
    if (!readable_)
        return LastFailure{statusDate(QFileInfo(file_).lastModified()),
                           {},
                           u"HistoryUnreadable"_s,
                           u"The history \"%1\" cannot be read."_s.arg(file_)}
            .toDictionary();
    return contents_.value(u"LastFailure"_s).toMap();
}

void History::setLastFailure(const std::optional<LastFailure>& failure)
{
    if (failure)
        contents_.insert(u"LastFailure"_s, failure->toDictionary());
    else
        contents_.remove(u"LastFailure"_s);
}

bool History::save()
{
    if (!readable_) {
        std::rename(QFile::encodeName(file_).constData(), QFile::encodeName(damagedFile_).constData());
        readable_ = true;
    }
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
