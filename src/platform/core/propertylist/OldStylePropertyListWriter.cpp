#include "PropertyList.h"
#include "PropertyListFormats.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool isBareCharacter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

/// The letter behind the backslash for characters that have an escape of their own; 0 for the others.
char escapeLetter(char16_t unit)
{
    switch (unit) {
    case u'\a':
        return 'a';
    case u'\b':
        return 'b';
    case u'\f':
        return 'f';
    case u'\n':
        return 'n';
    case u'\r':
        return 'r';
    case u'\t':
        return 't';
    case u'\v':
        return 'v';
    case u'\\':
        return '\\';
    case u'"':
        return '"';
    default:
        return 0;
    }
}

QByteArray paddedNumber(char16_t unit, int base, int digits)
{
    return QByteArray::number(unit, base).rightJustified(digits, '0');
}

} // namespace

bool OldStylePropertyListWriter::write(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
    case QMetaType::QVariantList:
        return writeContainer(value);
    default:
        return writeScalar(value);
    }
}

bool OldStylePropertyListWriter::writeContainer(const QVariant& value)
{
    if (depth_ == propertylist::maximumNesting)
        return false;
    const bool dictionary = value.typeId() == QMetaType::QVariantMap;
    indent();
    text_.append(dictionary ? "{\n" : "(\n");
    ++depth_;
    const bool done = dictionary ? writeDictionary(value.toMap()) : writeArray(value.toList());
    --depth_;
    indent();
    text_.append(dictionary ? '}' : ')');
    return done;
}

bool OldStylePropertyListWriter::writeDictionary(const QVariantMap& entries)
{
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        indent();
        if (!writeString(entry.key()))
            return false;
        text_.append(" = ");
        if (!write(entry.value()))
            return false;
        text_.append(";\n");
    }
    return true;
}

bool OldStylePropertyListWriter::writeArray(const QVariantList& elements)
{
    for (qsizetype i = 0; i < elements.size(); ++i) {
        indent();
        if (!write(elements[i]))
            return false;
        text_.append(i + 1 < elements.size() ? ",\n" : "\n");
    }
    return true;
}

bool OldStylePropertyListWriter::writeScalar(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return writeString(value.toString());
    case QMetaType::QByteArray:
        writeData(value.toByteArray());
        return true;
    case QMetaType::Bool:
        return writeString(value.toBool() ? u"1"_s : u"0"_s);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return writeString(QString::number(value.toLongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return writeString(QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest));
    case QMetaType::QDateTime:
        return writeString(value.toDateTime().toUTC().toString(u"yyyy-MM-dd HH:mm:ss +0000"_s));
    default:
        return false;
    }
}

bool OldStylePropertyListWriter::writeString(const QString& string)
{
    if (!string.isValidUtf16())
        return false;
    if (!string.isEmpty() && std::all_of(string.begin(), string.end(), isBareCharacter)) {
        text_.append(string.toLatin1());
        return true;
    }
    text_.append('"');
    for (const QChar c : string) {
        const char16_t unit = c.unicode();
        if (const char letter = escapeLetter(unit))
            text_.append('\\').append(letter);
        else if (unit < 0x20 || unit == 0x7F)
            text_.append('\\').append(paddedNumber(unit, 8, 3));
        else if (unit > 0x7F)
            text_.append("\\U").append(paddedNumber(unit, 16, 4));
        else
            text_.append(static_cast<char>(unit));
    }
    text_.append('"');
    return true;
}

void OldStylePropertyListWriter::writeData(const QByteArray& data)
{
    constexpr int groupLength = 4;
    text_.append('<');
    for (qsizetype i = 0; i < data.size(); i += groupLength) {
        if (i > 0)
            text_.append(' ');
        text_.append(data.sliced(i, std::min<qsizetype>(groupLength, data.size() - i)).toHex());
    }
    text_.append('>');
}

} // namespace quillon
