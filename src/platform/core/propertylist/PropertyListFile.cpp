#include "PropertyListFile.h"

#include "PropertyList.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownedFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

constexpr off_t largestFile = 64 << 20; // bytes; settings have some thousands, the history of years some millions

std::optional<QByteArray> bytesOf(const QVariantMap& contents)
{
    if (auto text = propertylist::toXml(contents))
        return text;
    return propertylist::toBinary(contents);
}

} // namespace

FoundPropertyList findPropertyList(const QString& path)
{
    using State = FoundPropertyList::State;
    // Nobody may ever write to a pipe.
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    // What lies in a folder that cannot be searched may well be there.
    if (descriptor < 0)
        return {errno == ENOENT ? State::Absent : State::Unreadable, {}, qt_error_string(errno)};
    QFile file;
    file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    struct stat found {};
    if (fstat(descriptor, &found) != 0 || !S_ISREG(found.st_mode))
        return {State::Unreadable, {}, u"it is no file"_s};
    if (found.st_size > largestFile)
        return {State::Unreadable, {}, u"it is too large"_s};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return {State::Unreadable, {}, file.errorString()};
    propertylist::ParseError error;
    const auto value = propertylist::parse(bytes, &error);
    if (!value)
        return {State::Damaged, {}, error.message};
    if (value->typeId() != QMetaType::QVariantMap)
        return {State::Damaged, {}, u"it is no dictionary"_s};
    return {State::Read, value->toMap(), {}};
}

std::optional<QVariantMap> readPropertyListFile(const QString& path)
{
    auto found = findPropertyList(path);
    if (found.state == FoundPropertyList::State::Unreadable || found.state == FoundPropertyList::State::Damaged)
        return std::nullopt;
    return std::move(found.contents);
}

bool writePropertyListFile(const QString& path, const QVariantMap& contents, QString* trouble)
{
    const auto bytes = bytesOf(contents);
    QSaveFile file(path);
    const bool written = bytes && file.open(QIODevice::WriteOnly) && file.setPermissions(ownedFile) &&
                         file.write(*bytes) == bytes->size() && file.commit();
    if (!written && trouble)
        *trouble = bytes ? file.errorString() : u"it holds values that no property list can"_s;
    return written;
}

bool replacePropertyListFile(const QString& path, const QVariantMap& contents)
{
    const auto bytes = bytesOf(contents);
    QFile file(path + ".new"_L1);
    return bytes && file.open(QIODevice::WriteOnly) && file.setPermissions(ownedFile) &&
           file.write(*bytes) == bytes->size() && file.flush() &&
           std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0;
}

} // namespace quillon
