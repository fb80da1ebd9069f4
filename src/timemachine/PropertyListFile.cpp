#include "PropertyListFile.h"

#include "PropertyList.h"

#include <QFile>
#include <QSaveFile>

namespace quillon {

std::optional<QVariantMap> readPropertyListFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (file.exists())
            return std::nullopt;
        return QVariantMap();
    }
    const auto value = propertylist::parse(file.readAll());
    if (!value || value->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return value->toMap();
}

bool writePropertyListFile(const QString& path, const QVariantMap& contents)
{
    const auto bytes = propertylist::toXml(contents);
    QSaveFile file(path);
    return bytes && file.open(QIODevice::WriteOnly) &&
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
           file.write(*bytes) == bytes->size() && file.commit();
}

} // namespace quillon
