#include "PropertyList.h"

#include "LibplistCodec.h"
#include "OldStylePropertyListReader.h"
#include "OldStylePropertyListWriter.h"
#include "StrictUtf8.h"

#include <algorithm>
#include <initializer_list>

namespace quillon::propertylist {

namespace {

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
    ParseError& reason = error ? *error : ignored;
    if (bytes.startsWith("bplist"))
        return libplist::readBinary(bytes, reason);
    if (looksLikeXml(bytes))
        return libplist::readXml(bytes, reason);
    return parseOldStyle(bytes, &reason);
}

std::optional<QVariant> parseOldStyle(QByteArrayView bytes, ParseError* error)
{
    OldStylePropertyListReader reader(bytes);
    auto value = reader.read();
    if (!value && error)
        *error = reader.error();
    return value;
}

std::optional<QByteArray> toXml(const QVariant& value)
{
    return libplist::writeXml(value);
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

} // namespace quillon::propertylist
