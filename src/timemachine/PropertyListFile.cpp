#include "PropertyListFile.h"

#include "PropertyList.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

} // namespace

std::optional<QVariantMap> readPropertyListFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        // What lies in a folder that cannot be searched may well be there.
        if (access(QFile::encodeName(path).constData(), F_OK) != 0 && errno == ENOENT)
            return QVariantMap();
        return std::nullopt;
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
    return bytes && file.open(QIODevice::WriteOnly) && file.setPermissions(ownerOnly) &&
           file.write(*bytes) == bytes->size() && file.commit();
}

bool replacePropertyListFile(const QString& path, const QVariantMap& contents)
{
    const auto bytes = propertylist::toXml(contents);
    QFile file(path + ".new"_L1);
    return bytes && file.open(QIODevice::WriteOnly) && file.setPermissions(ownerOnly) &&
           file.write(*bytes) == bytes->size() && file.flush() &&
           std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0;
}

} // namespace quillon
