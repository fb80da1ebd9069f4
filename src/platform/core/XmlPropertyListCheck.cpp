#include "XmlPropertyListCheck.h"

#include "PropertyListLimits.h"

#include <QDateTime>
#include <QXmlStreamReader>

#include <tuple>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool isInteger(QStringView text)
{
    const QStringView digits = text.startsWith(u'-') || text.startsWith(u'+') ? text.sliced(1) : text;
    const bool hexadecimal = digits.startsWith(u"0x");
    // libplist takes a leading zero for octal, as strtoull(3) does.
    if (!hexadecimal && digits.size() > 1 && digits.startsWith(u'0'))
        return false;
    bool fits = false;
    std::ignore = hexadecimal ? digits.sliced(2).toLongLong(&fits, 16) : text.toLongLong(&fits);
    return fits;
}

bool isReal(QStringView text)
{
    // Core Foundation and libplist write these beside "nan", which QString knows.
    if (text == u"+infinity" || text == u"-infinity")
        return true;
    bool fits = false;
    std::ignore = text.toDouble(&fits);
    return fits;
}

bool isDate(QStringView text)
{
    return text.endsWith(u'Z') && QDateTime::fromString(text.toString(), Qt::ISODate).isValid();
}

bool isData(QStringView text)
{
    QByteArray encoded = text.toLatin1();
    encoded.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    return encoded.size() % 4 == 0 &&
           QByteArray::fromBase64Encoding(std::move(encoded), QByteArray::AbortOnBase64DecodingErrors);
}

/// Whether the text is one of the element it stands in.
bool isTextOf(QStringView element, QStringView text)
{
    if (element == u"integer")
        return isInteger(text.trimmed());
    if (element == u"real")
        return isReal(text.trimmed());
    if (element == u"date")
        return isDate(text.trimmed());
    return element != u"data" || isData(text);
}

bool isScalar(QStringView element)
{
    return element == u"integer" || element == u"real" || element == u"date" || element == u"data" ||
           element == u"string" || element == u"key" || element == u"true" || element == u"false";
}

/// Reads from a start tag to the end of the document.
QString firstFault(QXmlStreamReader& reader)
{
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement())
            --depth;
        if (!reader.isStartElement())
            continue;
        if (isScalar(reader.name())) {
            const QString element = reader.name().toString();
            const QString text = reader.readElementText();
            if (!reader.hasError() && !isTextOf(element, text))
                return u"\"%1\" is no %2"_s.arg(text.left(40), element);
        } else if (++depth > propertylist::maximumNesting + 1) { // the outermost element counts too
            return u"arrays and dictionaries are nested too deeply"_s;
        }
    }
    return reader.hasError() ? reader.errorString() : QString();
}

} // namespace

bool checkXmlPropertyList(const QByteArray& bytes, propertylist::ParseError& error)
{
    QXmlStreamReader reader(bytes);
    const QString fault = firstFault(reader);
    if (fault.isEmpty())
        return true;
    error = {fault, static_cast<int>(reader.lineNumber()), static_cast<int>(reader.columnNumber()) + 1};
    return false;
}

} // namespace quillon
