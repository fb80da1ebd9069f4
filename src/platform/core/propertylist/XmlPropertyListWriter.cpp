#include "XmlPropertyListWriter.h"

#include "PropertyListLimits.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

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
