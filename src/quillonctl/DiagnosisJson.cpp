#include "Diagnosis.h"
#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QJsonValue orNull(std::optional<bool> fact)
{
    return fact ? QJsonValue(*fact) : QJsonValue();
}

QJsonValue dateOrNull(std::optional<Date> date)
{
    return date ? QJsonValue(report::isoDate(*date)) : QJsonValue();
}

QJsonObject object(const Diagnosis::Answer& answer)
{
    return {{u"milliseconds"_s, static_cast<qint64>(answer.time.count())},
            {u"trouble"_s, answer.trouble.isEmpty() ? QJsonValue() : answer.trouble}};
}

QJsonArray array(const QList<Diagnosis::Disk>& disks)
{
    QJsonArray array;
    for (const auto& disk : disks)
        array.append(QJsonObject{{u"name"_s, disk.name},
                                 {u"isSetUp"_s, orNull(disk.isSetUp)},
                                 {u"isConnected"_s, orNull(disk.isConnected)},
                                 {u"isLast"_s, disk.isLast},
                                 {u"latestBackup"_s, dateOrNull(disk.latestBackup)}});
    return array;
}

QJsonObject scheduleObject(const Diagnosis& found)
{
    QJsonArray starts;
    for (const Date start : found.comingStarts)
        starts.append(report::isoDate(start));
    return {{u"isOn"_s, found.scheduleIsOn},
            {u"rules"_s, QJsonArray::fromStringList(found.rules)},
            {u"comingStarts"_s, starts},
            {u"pausedUntil"_s, dateOrNull(found.pausedUntil)},
            {u"retriesMissed"_s, found.retriesMissed},
            {u"retriesFailed"_s, found.retriesFailed},
            {u"rotatesDisks"_s, found.rotatesDisks}};
}

QJsonObject zoneObject(const Diagnosis& found)
{
    QJsonValue change;
    if (found.zoneChange)
        change = QJsonObject{{u"at"_s, report::isoDate(found.zoneChange->at)},
                             {u"offsetBefore"_s, found.zoneChange->before},
                             {u"offsetAfter"_s, found.zoneChange->after}};
    return {{u"name"_s, found.timeZone}, {u"offset"_s, found.offset}, {u"nextChange"_s, change}};
}

} // namespace

QByteArray report::doctorJson(const Diagnosis& found)
{
    QJsonValue failure;
    if (const auto& last = found.lastFailure)
        failure = QJsonObject{{u"date"_s, last->date},
                              {u"disk"_s, last->disk},
                              {u"cause"_s, last->cause},
                              {u"unreadFiles"_s, last->unreadFiles}};
    return QJsonDocument(QJsonObject{{u"date"_s, report::isoDate(found.now)},
                                     {u"problems"_s, QJsonArray::fromStringList(problems(found))},
                                     {u"quillon"_s, QJsonObject{{u"version"_s, found.version},
                                                                {u"build"_s, found.build},
                                                                {u"qt"_s, found.qtVersion}}},
                                     {u"system"_s, QJsonObject{{u"name"_s, found.system},
                                                               {u"kernel"_s, found.kernel},
                                                               {u"architecture"_s, found.architecture},
                                                               {u"desktop"_s, found.desktop},
                                                               {u"sessionType"_s, found.sessionType},
                                                               {u"language"_s, found.language}}},
                                     {u"item"_s, QJsonObject{{u"place"_s, found.itemPlace},
                                                             {u"reason"_s, found.itemReason},
                                                             {u"lastIcon"_s, found.iconState}}},
                                     {u"tool"_s, QJsonObject{{u"path"_s, found.toolPath},
                                                             {u"activity"_s, found.activity},
                                                             {found.status.command, object(found.status)},
                                                             {found.destinations.command, object(found.destinations)},
                                                             {u"lastFailure"_s, failure}}},
                                     {u"disks"_s, array(found.disks)},
                                     {u"schedule"_s, scheduleObject(found)},
                                     {u"timeZone"_s, zoneObject(found)}})
        .toJson();
}

} // namespace quillon
