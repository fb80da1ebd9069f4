#include "XmlPropertyListReader.h"

#include "PropertyListLimits.h"

#include <QDateTime>
#include <QRegularExpression>

#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

// Here a function that reads a value gives an invalid one for two reasons: the value cannot be held, or the text is at
// fault, which the XML reader then knows of.
namespace {

/// Nothing for a text that is no number; invalid for a number of more than 63 bits and a sign.
std::optional<QVariant> integer(QStringView text)
{
    static const QRegularExpression decimal(u"^[+-]?(0|[1-9][0-9]*)$"_s);
    static const QRegularExpression hexadecimal(u"^[+-]?0x[0-9A-Fa-f]+$"_s);
    bool fits = false;
    qlonglong number = 0;
    // No octal numbers: strtoull(3) reads a leading zero so, other readers of property lists do not.
    if (decimal.match(text).hasMatch())
        number = text.toLongLong(&fits);
    else if (hexadecimal.match(text).hasMatch())
        number = text.toLongLong(&fits, 16);
    else
        return std::nullopt;
    return fits ? QVariant(number) : QVariant();
}

std::optional<QVariant> real(QStringView text)
{
    // Core Foundation writes these beside "nan", which QString knows.
    if (text == u"+infinity" || text == u"-infinity")
        return std::numeric_limits<double>::infinity() * (text.startsWith(u'-') ? -1 : 1);
    bool fits = false;
    const double number = text.toDouble(&fits);
    return fits ? std::optional<QVariant>(number) : std::nullopt;
}

/// Invalid for a day that the calendar does not have, such as those of the year 0.
std::optional<QVariant> date(QStringView text)
{
    static const QRegularExpression form(uR"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$)"_s);
    if (!form.match(text).hasMatch())
        return std::nullopt;
    const QDateTime date = QDateTime::fromString(text.toString(), Qt::ISODate);
    return date.isValid() ? QVariant(date) : QVariant();
}

std::optional<QVariant> data(QStringView text)
{
    QByteArray encoded = text.toLatin1();
    encoded.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    if (encoded.size() % 4 != 0)
        return std::nullopt;
    auto decoded = QByteArray::fromBase64Encoding(std::move(encoded), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional<QVariant>(*std::move(decoded)) : std::nullopt;
}

} // namespace

XmlPropertyListReader::XmlPropertyListReader(const QByteArray& bytes)
    : xml_(bytes)
{
}

std::optional<QVariant> XmlPropertyListReader::read()
{
    QVariant value = readDocument();
    if (!xml_.hasError() && !value.isValid())
        fail(u"the property list holds nothing that can be represented"_s);
    while (!xml_.atEnd())
        xml_.readNext();
    return xml_.hasError() ? std::nullopt : std::optional(std::move(value));
}

propertylist::ParseError XmlPropertyListReader::error() const
{
    return {xml_.errorString(), static_cast<int>(xml_.lineNumber()), static_cast<int>(xml_.columnNumber()) + 1};
}

QVariant XmlPropertyListReader::readDocument()
{
    if (!xml_.readNextStartElement() || xml_.name() != u"plist")
        return fail(u"not a property list"_s);
    if (!xml_.readNextStartElement())
        return {};
    QVariant value = readValue();
    return xml_.readNextStartElement() ? fail(u"a property list is one value"_s) : value;
}

QVariant XmlPropertyListReader::readValue()
{
    const bool isArray = xml_.name() == u"array";
    if (!isArray && xml_.name() != u"dict")
        return readScalar();
    if (depth_ == propertylist::maximumNesting)
        return fail(u"arrays and dictionaries are nested too deeply"_s);
    ++depth_;
    QVariant value = isArray ? readArray() : readDictionary();
    --depth_;
    return value;
}

QVariant XmlPropertyListReader::readScalar()
{
    const QString element = xml_.name().toString();
    const QString text = xml_.readElementText();
    if (element == "string"_L1)
        return text;
    if (element == "true"_L1 || element == "false"_L1)
        return element == "true"_L1;
    std::optional<QVariant> value;
    if (element == "integer"_L1)
        value = integer(QStringView(text).trimmed());
    else if (element == "real"_L1)
        value = real(QStringView(text).trimmed());
    else if (element == "date"_L1)
        value = date(QStringView(text).trimmed());
    else if (element == "data"_L1)
        value = data(text);
    return value ? *std::move(value) : fail(u"\"%1\" is no %2"_s.arg(text.left(40), element));
}

QVariant XmlPropertyListReader::readArray()
{
    QVariantList elements;
    while (xml_.readNextStartElement()) {
        if (QVariant element = readValue(); element.isValid())
            elements.append(std::move(element));
    }
    return elements;
}

QVariant XmlPropertyListReader::readDictionary()
{
    QVariantMap entries;
    while (xml_.readNextStartElement()) {
        if (xml_.name() != u"key")
            return fail(u"a dictionary has a value without a key"_s);
        const QString key = xml_.readElementText();
        if (!xml_.readNextStartElement())
            return fail(u"the key \"%1\" has no value"_s.arg(key.left(40)));
        if (QVariant value = readValue(); value.isValid())
            entries.insert(key, std::move(value));
    }
    return entries;
}

QVariant XmlPropertyListReader::fail(const QString& reason)
{
    if (!xml_.hasError()) // the first fault is the one to tell
        xml_.raiseError(reason);
    return {};
}

} // namespace quillon
