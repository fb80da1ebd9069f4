#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace quillon::propertylist {

/// The value of a key when it is a single value; a missing key or a container gives an invalid QVariant.
inline QVariant scalar(const QVariantMap& dictionary, const QString& key)
{
    const QVariant value = dictionary.value(key);
    const auto type = value.typeId();
    return type == QMetaType::QVariantMap || type == QMetaType::QVariantList ? QVariant() : value;
}

/// The dictionary of a key; nothing when the key is missing or holds something else.
inline std::optional<QVariantMap> dictionary(const QVariantMap& outer, const QString& key)
{
    const QVariant value = outer.value(key);
    return value.typeId() == QMetaType::QVariantMap ? std::optional(value.toMap()) : std::nullopt;
}

} // namespace quillon::propertylist
