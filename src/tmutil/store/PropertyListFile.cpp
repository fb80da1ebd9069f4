#include "PropertyListFile.h"

#include "PropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString beside(const QString& path, QLatin1StringView what)
{
    const QFileInfo file(path);
    return file.path() + u'/' + file.completeBaseName() + u'-' + what + u'.' + file.suffix();
}

/// The file stays where it is: writing the next version may fail, most likely on the full disk that damaged this one.
void keepBeside(const QString& path, QLatin1StringView what)
{
    const QByteArray fresh = QFile::encodeName(beside(path, "fresh"_L1));
    unlink(fresh.constData());
    if (link(QFile::encodeName(path).constData(), fresh.constData()) == 0)
        std::rename(fresh.constData(), QFile::encodeName(beside(path, what)).constData());
}

} // namespace

std::optional<QVariantMap> readPropertyListFile(const QString& path)
{
    // Nobody may ever write to a pipe.
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat state {};
    QFile file;
    if (descriptor < 0)
        // What lies in a folder that cannot be searched may well be there.
        return errno == ENOENT ? std::optional(QVariantMap()) : std::nullopt;
    const bool isFile = fstat(descriptor, &state) == 0 && S_ISREG(state.st_mode);
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) || !isFile)
        return std::nullopt;
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

KeptPropertyList readKeptPropertyList(const QString& path)
{
    const QString previous = beside(path, "previous"_L1);
    const bool isLost = !QFile::exists(path) && QFile::exists(previous);
    if (auto contents = readPropertyListFile(path); contents && !isLost)
        return {std::move(contents), false};
    return {QFile::exists(previous) ? readPropertyListFile(previous) : std::nullopt, true};
}

bool writeKeptPropertyList(const QString& path, const QVariantMap& contents)
{
    if (const auto current = readPropertyListFile(path); !current)
        keepBeside(path, "damaged"_L1);
    else if (*current != contents)
        keepBeside(path, "previous"_L1);
    return writePropertyListFile(path, contents);
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
