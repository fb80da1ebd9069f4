#include "PropertyList.h"
#include "PropertyListFormats.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

// A function that reads a value gives an invalid one where no QVariant holds it, and where the text is at fault; then
// the XML reader has an error.
namespace {

// The settings are read so in a program that runs all day: the first regular expression costs it half a megabyte.
bool isDecimalDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isHexadecimalDigit(QChar c)
{
    return isDecimalDigit(c) || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}

QStringView withoutLineEnd(QStringView text)
{
    return text.endsWith(u'\n') ? text.chopped(1) : text;
}

/// Nothing for a text that is no number; invalid for a number of more than 63 bits and a sign.
std::optional<QVariant> integer(QStringView text)
{
    text = withoutLineEnd(text);
    const QStringView digits = text.startsWith(u'+') || text.startsWith(u'-') ? text.mid(1) : text;
    const bool isHexadecimal = digits.startsWith("0x"_L1) && digits.size() > 2;
    // Readers of property lists differ on a leading zero: some take the number for an octal one, as strtoull(3) does.
    const bool isDecimal = !digits.isEmpty() && (digits.size() == 1 || !digits.startsWith(u'0'));
    if (isHexadecimal ? !std::ranges::all_of(digits.mid(2), isHexadecimalDigit)
                      : !isDecimal || !std::ranges::all_of(digits, isDecimalDigit))
        return std::nullopt;
    bool fits = false;
    const qlonglong number = text.toLongLong(&fits, isHexadecimal ? 16 : 10);
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
    const auto hasForm = [](QChar c, QChar form) { return form == u'0' ? isDecimalDigit(c) : c == form; };
    if (!std::ranges::equal(withoutLineEnd(text), u"0000-00-00T00:00:00Z"_s, hasForm))
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
        if (const QVariant value = readValue(); value.isValid())
            entries.insert(key, value);
    }
    return entries;
}

QVariant XmlPropertyListReader::fail(const QString& reason)
{
    if (!xml_.hasError()) // the first fault is the one to tell
        xml_.raiseError(reason);
    return {};
}

namespace {

bool isXmlCharacter(QChar character)
{
    // Extensible Markup Language 1.0, production Char.
    const char16_t unit = character.unicode();
    return unit >= 0x20 ? unit < 0xFFFE : unit == u'\t' || unit == u'\n' || unit == u'\r';
}

QString realText(double number)
{
    constexpr int everyDigit = 17;
    if (std::isinf(number)) // in Core Foundation's words
        return number > 0 ? u"+infinity"_s : u"-infinity"_s;
    return QString::number(number, 'g', everyDigit);
}

} // namespace

XmlPropertyListWriter::XmlPropertyListWriter()
{
    xml_.setAutoFormatting(true);
    xml_.setAutoFormattingIndent(-1); // a tab
}

bool XmlPropertyListWriter::write(const QVariant& value)
{
    xml_.writeStartDocument();
    xml_.writeDTD(
        u"<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"_s);
    xml_.writeStartElement(u"plist"_s);
    xml_.writeAttribute(u"version"_s, u"1.0"_s);
    const bool written = writeValue(value);
    xml_.writeEndDocument();
    return written;
}

QByteArray XmlPropertyListWriter::text() const
{
    // Qt writes a carriage return as it is, and XML readers take that for a line feed.
    return QByteArray(text_).replace('\r', "&#13;");
}

bool XmlPropertyListWriter::writeValue(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        xml_.writeEmptyElement(value.toBool() ? u"true"_s : u"false"_s);
        return true;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return writeText(u"integer"_s, QString::number(value.toLongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return writeText(u"real"_s, realText(value.toDouble()));
    case QMetaType::QString:
        return writeText(u"string"_s, value.toString());
    case QMetaType::QByteArray:
        return writeText(u"data"_s, QString::fromLatin1(value.toByteArray().toBase64()));
    case QMetaType::QDateTime:
        return writeDate(value);
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
        return writeContainer(value);
    default:
        return false;
    }
}

bool XmlPropertyListWriter::writeContainer(const QVariant& value)
{
    if (depth_ == propertylist::maximumNesting)
        return false;
    ++depth_;
    bool written = true;
    if (value.typeId() == QMetaType::QVariantMap) {
        xml_.writeStartElement(u"dict"_s);
        const QVariantMap entries = value.toMap();
        for (auto entry = entries.begin(); written && entry != entries.end(); ++entry)
            written = writeText(u"key"_s, entry.key()) && writeValue(entry.value());
    } else {
        xml_.writeStartElement(u"array"_s);
        const QVariantList elements = value.toList();
        written = std::all_of(elements.begin(), elements.end(), [this](const auto& one) { return writeValue(one); });
    }
    xml_.writeEndElement();
    --depth_;
    return written;
}

bool XmlPropertyListWriter::writeText(const QString& element, const QString& text)
{
    if (!text.isValidUtf16() || !std::all_of(text.begin(), text.end(), isXmlCharacter))
        return false;
    xml_.writeTextElement(element, text);
    return true;
}

bool XmlPropertyListWriter::writeDate(const QVariant& value)
{
    // Fractions of a second are cut off, downward before 1970 too.
    const qint64 seconds =
        static_cast<qint64>(std::floor(static_cast<double>(value.toDateTime().toMSecsSinceEpoch()) / 1000));
    const QDateTime date = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    if (!value.toDateTime().isValid() || date.date().year() < 1 || date.date().year() > 9999)
        return false;
    return writeText(u"date"_s, date.toString(u"yyyy-MM-dd'T'HH:mm:ss'Z'"_s));
}

} // namespace quillon
