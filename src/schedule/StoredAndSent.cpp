#include "StoredAndSent.h"

#include "HostSystem.h"
#include "NextBackup.h"
#include "PropertyList.h"

#include <QDateTime>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString identifierKey = u"diskIdentifier"_s;
const QString nameKey = u"diskName"_s;
const QString dateKey = u"date"_s;
const QString bytesKey = u"totalBytes"_s;

bool isAbsentOr(const QVariant& value, std::initializer_list<QMetaType::Type> types)
{
    return !value.isValid() || std::find(types.begin(), types.end(), value.typeId()) != types.end();
}

/// A dictionary of other keys alone is another program's.
bool hasAnyField(const QVariantMap& fields)
{
    const auto keys = {identifierKey, nameKey, dateKey, bytesKey};
    return std::any_of(keys.begin(), keys.end(), [&](const QString& key) { return fields.contains(key); });
}

bool hasRightTypes(const QVariantMap& fields)
{
    return isAbsentOr(fields.value(identifierKey), {QMetaType::QString}) &&
           isAbsentOr(fields.value(nameKey), {QMetaType::QString}) &&
           isAbsentOr(fields.value(dateKey), {QMetaType::QDateTime}) &&
           isAbsentOr(fields.value(bytesKey), {QMetaType::LongLong, QMetaType::Double, QMetaType::Bool});
}

} // namespace

BackupInfo::BackupInfo(Date now)
    : date_(now)
{
}

BackupInfo::BackupInfo(QString diskIdentifier, Date now)
    : diskIdentifier_(std::move(diskIdentifier))
    , date_(now)
{
}

std::optional<QByteArray> BackupInfo::archivedData() const
{
    QVariantMap fields{
        {identifierKey, diskIdentifier_}, {nameKey, diskName_}, {bytesKey, static_cast<qlonglong>(totalBytes_)}};
    if (date_)
        fields.insert(dateKey, QDateTime::fromMSecsSinceEpoch(date_->time_since_epoch().count(), Qt::UTC));
    return propertylist::toBinary(fields);
}

std::optional<BackupInfo> BackupInfo::unarchiveFromData(const QByteArray& data)
{
    const auto list = propertylist::parse(data);
    if (!list || list->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    const QVariantMap fields = list->toMap();
    if (!hasAnyField(fields) || !hasRightTypes(fields))
        return std::nullopt;
    BackupInfo info;
    info.diskIdentifier_ = fields.value(identifierKey).toString();
    info.diskName_ = fields.value(nameKey).toString();
    info.totalBytes_ = propertylist::toInteger(fields.value(bytesKey));
    if (const auto date = fields.value(dateKey).toDateTime(); date.isValid())
        info.date_ = Date(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
    return info;
}

QVariantMap registeredDefaults()
{
    using namespace settingskeys;
    // The pause, the changed starts, the remembered backups and the icon state have no default: absent is what their
    // readers look for.
    const qlonglong whereNobodyElseWatches = systemWatchesOverBackups() ? 0 : 1;
    return {
        {firstLaunch, true},
        {enableSchedule, 1LL},
        {enableRetryAtMissedSchedule, 1LL},
        {enableRetryAtFailure, 1LL},
        {showDetailedTime, 1LL},
        {showMenuBarIconOnly, 0LL},
        {enableMenuBarColors, 1LL},
        {rotateBackupDisks, 1LL},
        {launchAtSystemStart, 1LL},
        {calendarIntervals, QVariantList{CalendarIntervalRule().toDictionary()}},
        {daysWithoutBackup, systemWatchesOverBackups() ? 0LL : 10LL},
        {stayAwake, whereNobodyElseWatches},
        {startWhenDiskAppears, whereNobodyElseWatches},
    };
}

} // namespace quillon
