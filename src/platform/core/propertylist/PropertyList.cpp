#include "PropertyList.h"

#include "LibplistCodec.h"
#include "OldStylePropertyListReader.h"
#include "OldStylePropertyListWriter.h"
#include "StrictUtf8.h"
#include "XmlPropertyListReader.h"
#include "XmlPropertyListWriter.h"

#include <algorithm>
#include <initializer_list>

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

} // namespace quillon::propertylist
