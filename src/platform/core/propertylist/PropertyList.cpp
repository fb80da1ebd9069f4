#include "PropertyList.h"

#include "PropertyListFormats.h"
#include "Text.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <fcntl.h>
#include <initializer_list>
#include <limits>
#include <sys/stat.h>

namespace quillon::propertylist {

namespace {

/// What a reader of a text format finds; nothing, with the reason in `error`, when the text is not of that format.
template<typename Reader>
std::optional<QVariant> read(Reader&& reader, ParseError* error)
{
    auto value = reader.read();
    if (!value && error)
        *error = reader.error();
    return value;
}

bool looksLikeXml(QByteArrayView bytes)
{
    bytes = withoutByteOrderMark(bytes).trimmed();
    // Old-style data begins with the same bracket, but with a digit, a blank or a bracket behind it.
    const std::initializer_list<QByteArrayView> openings = {"<?", "<!", "<plist"};
    return std::any_of(openings.begin(), openings.end(), [bytes](auto opening) { return bytes.startsWith(opening); });
}

} // namespace

std::optional<QVariant> parse(const QByteArray& bytes, ParseError* error)
{
    ParseError ignored;
    if (bytes.startsWith("bplist"))
        return libplist::readBinary(bytes, error ? *error : ignored);
    return looksLikeXml(bytes) ? read(XmlPropertyListReader(bytes), error) : parseOldStyle(bytes, error);
}

std::optional<QVariant> parseOldStyle(QByteArrayView bytes, ParseError* error)
{
    return read(OldStylePropertyListReader(bytes), error);
}

std::optional<QByteArray> toXml(const QVariant& value)
{
    XmlPropertyListWriter writer;
    return writer.write(value) ? std::optional(writer.text()) : std::nullopt;
}

std::optional<QByteArray> toBinary(const QVariant& value)
{
    return libplist::writeBinary(value);
}

std::optional<QByteArray> toOldStyle(const QVariant& value)
{
    OldStylePropertyListWriter writer;
    if (!writer.write(value))
        return std::nullopt;
    return writer.text() + '\n';
}

namespace {

/// The text behind leading blanks.
QStringView afterBlanks(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    return text;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype skipSign(QStringView text, qsizetype at)
{
    return at < text.size() && (text[at] == u'-' || text[at] == u'+') ? at + 1 : at;
}

qsizetype skipDigits(QStringView text, qsizetype at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// The longest prefix that is a decimal number: sign, digits, point, digits, exponent.
QStringView numericPrefix(QStringView text)
{
    const qsizetype start = skipSign(text, 0);
    qsizetype end = skipDigits(text, start);
    qsizetype digits = end - start;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = end + 1;
        end = skipDigits(text, fraction);
        digits += end - fraction;
    }
    if (digits == 0)
        return {};
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype exponent = skipSign(text, end + 1);
        if (const qsizetype exponentEnd = skipDigits(text, exponent); exponentEnd > exponent)
            end = exponentEnd;
    }
    return text.first(end);
}

float floatFromText(QStringView text)
{
    return numericPrefix(afterBlanks(text)).toFloat();
}

qlonglong integerFromText(QStringView text)
{
    text = afterBlanks(text);
    const qsizetype start = skipSign(text, 0);
    const QStringView digits = text.sliced(start, skipDigits(text, start) - start);
    const bool negative = text.startsWith(u'-');
    if (digits.isEmpty())
        return 0;
    bool fits = false;
    const qlonglong magnitude = digits.toLongLong(&fits);
    if (!fits)
        return negative ? std::numeric_limits<qlonglong>::min() : std::numeric_limits<qlonglong>::max();
    return negative ? -magnitude : magnitude;
}

bool booleanFromText(QStringView text)
{
    text = afterBlanks(text);
    text = text.sliced(skipSign(text, 0));
    while (text.startsWith(u'0'))
        text = text.sliced(1);
    return !text.isEmpty() && QStringView(u"YyTt123456789").contains(text.front());
}

qlonglong saturated(double number)
{
    constexpr double bound = 0x1p63;
    if (std::isnan(number))
        return 0;
    if (number >= bound)
        return std::numeric_limits<qlonglong>::max();
    if (number < -bound)
        return std::numeric_limits<qlonglong>::min();
    return static_cast<qlonglong>(number);
}

bool isInteger(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return true;
    default:
        return false;
    }
}

bool isReal(const QVariant& value)
{
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
}

} // namespace

float toFloat(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return floatFromText(value.toString());
    if (isInteger(value))
        return static_cast<float>(value.toLongLong());
    return isReal(value) ? value.toFloat() : 0.0F;
}

qlonglong toInteger(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return integerFromText(value.toString());
    if (isInteger(value))
        return value.toLongLong();
    return isReal(value) ? saturated(value.toDouble()) : 0;
}

bool toBoolean(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return booleanFromText(value.toString());
    if (isInteger(value))
        return value.toLongLong() != 0;
    return isReal(value) && value.toDouble() != 0.0;
}

} // namespace quillon::propertylist

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
