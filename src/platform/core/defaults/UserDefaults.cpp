#include "UserDefaults.h"

#include "PropertyList.h"

#include <QDateTime>

namespace quillon {

void UserDefaults::registerDefaults(const QVariantMap& defaults)
{
    registered_.insert(defaults);
}

QVariant UserDefaults::object(const QString& key) const
{
    QVariant stored = storedValue(key);
    return stored.isValid() ? stored : registered_.value(key);
}

qlonglong UserDefaults::integer(const QString& key) const
{
    return propertylist::toInteger(object(key));
}

bool UserDefaults::boolean(const QString& key) const
{
    return propertylist::toBoolean(object(key));
}

QString UserDefaults::string(const QString& key) const
{
    const QVariant value = object(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

QVariantList UserDefaults::array(const QString& key) const
{
    const QVariant value = object(key);
    return value.typeId() == QMetaType::QVariantList ? value.toList() : QVariantList();
}

std::optional<Date> UserDefaults::date(const QString& key) const
{
    const QVariant value = object(key);
    if (value.typeId() != QMetaType::QDateTime || !value.toDateTime().isValid())
        return std::nullopt;
    return Date(std::chrono::milliseconds(value.toDateTime().toMSecsSinceEpoch()));
}

void UserDefaults::setObject(const QString& key, const QVariant& value)
{
    storeValue(key, value);
}

void UserDefaults::setDate(const QString& key, std::optional<Date> date)
{
    storeValue(key, date ? QDateTime::fromMSecsSinceEpoch(date->time_since_epoch().count(), Qt::UTC) : QVariant());
}

} // namespace quillon
