#pragma once

#include "PropertyList.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringConverter>
#include <QVariant>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>

// The formats behind PropertyList.h.

namespace quillon {

/// Unicode of the bytes 128 to 255 in the NEXTSTEP encoding, which octal escapes of old-style property lists use.
/// Source: the table VENDORS/NEXT/NEXTSTEP.TXT of the Unicode Consortium.
inline constexpr char16_t nextStepUpperHalf[128] = {
    // clang-format off
    u'\u00A0', u'\u00C0', u'\u00C1', u'\u00C2', u'\u00C3', u'\u00C4', u'\u00C5', u'\u00C7',
    u'\u00C8', u'\u00C9', u'\u00CA', u'\u00CB', u'\u00CC', u'\u00CD', u'\u00CE', u'\u00CF',
    u'\u00D0', u'\u00D1', u'\u00D2', u'\u00D3', u'\u00D4', u'\u00D5', u'\u00D6', u'\u00D9',
    u'\u00DA', u'\u00DB', u'\u00DC', u'\u00DD', u'\u00DE', u'\u00B5', u'\u00D7', u'\u00F7',
    u'\u00A9', u'\u00A1', u'\u00A2', u'\u00A3', u'\u2044', u'\u00A5', u'\u0192', u'\u00A7',
    u'\u00A4', u'\u2019', u'\u201C', u'\u00AB', u'\u2039', u'\u203A', u'\uFB01', u'\uFB02',
    u'\u00AE', u'\u2013', u'\u2020', u'\u2021', u'\u00B7', u'\u00A6', u'\u00B6', u'\u2022',
    u'\u201A', u'\u201E', u'\u201D', u'\u00BB', u'\u2026', u'\u2030', u'\u00AC', u'\u00BF',
    u'\u00B9', u'\u02CB', u'\u00B4', u'\u02C6', u'\u02DC', u'\u00AF', u'\u02D8', u'\u02D9',
    u'\u00A8', u'\u00B2', u'\u02DA', u'\u00B8', u'\u00B3', u'\u02DD', u'\u02DB', u'\u02C7',
    u'\u2014', u'\u00B1', u'\u00BC', u'\u00BD', u'\u00BE', u'\u00E0', u'\u00E1', u'\u00E2',
    u'\u00E3', u'\u00E4', u'\u00E5', u'\u00E7', u'\u00E8', u'\u00E9', u'\u00EA', u'\u00EB',
    u'\u00EC', u'\u00C6', u'\u00ED', u'\u00AA', u'\u00EE', u'\u00EF', u'\u00F0', u'\u00F1',
    u'\u0141', u'\u00D8', u'\u0152', u'\u00BA', u'\u00F2', u'\u00F3', u'\u00F4', u'\u00F5',
    u'\u00F6', u'\u00E6', u'\u00F9', u'\u00FA', u'\u00FB', u'\u0131', u'\u00FC', u'\u00FD',
    u'\u0142', u'\u00F8', u'\u0153', u'\u00DF', u'\u00FE', u'\u00FF', u'\uFFFD', u'\uFFFD',
    // clang-format on
};

/// One pass over a property list in the old-style text format.
///
/// The grammar is that of "Old-Style ASCII Property Lists" in Apple's Property List Programming Guide:
/// `"quoted"`, `'quoted'` and bare strings, `<hex data>`, `( arrays )`, `{ key = value; }`, comments in both styles of
/// C. A comma may follow the last element of an array; the last entry of a dictionary needs its semicolon too. Of two
/// entries with the same key the later one counts. The bytes must outlive the reader.
class OldStylePropertyListReader {
public:
    explicit OldStylePropertyListReader(QByteArrayView bytes);

    /// The whole text as one value; nothing when it is not exactly that. To be called once.
    std::optional<QVariant> read();

    /// Why read() gave nothing.
    propertylist::ParseError error() const;

private:
    bool fail(const char* at, const char* message);
    bool checkEncoding();
    bool skipBlanks();
    bool skipComment();
    bool expect(char character, const char* message);

    bool readValue(QVariant& value);
    bool readDictionary(QVariant& value);
    bool readArray(QVariant& value);
    bool readData(QVariant& value);
    bool readString(QString& text);
    bool readQuotedString(QString& text);
    bool unescape(const char* from, const char* end, QString& text);
    bool readEscape(const char*& from, const char* end, QChar*& out);
    bool readUnicodeEscape(const char*& from, const char* end, QChar*& out);

    const char* const begin_;
    const char* const end_;
    const char* position_;
    QStringDecoder utf8_{QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom};
    int depth_ = 0;
    const char* errorPosition_ = nullptr;
    const char* errorMessage_ = nullptr;
};

/// Writes one value in the old-style text format, laid out as the system's own tools lay it out: one entry a line, keys
/// sorted, everything but ASCII as an escape, letters and digits alone without quotes.
class OldStylePropertyListWriter {
public:
    /// False when the value, or one inside it, is of a kind that property lists do not have.
    bool write(const QVariant& value);

    const QByteArray& text() const { return text_; }

private:
    bool writeContainer(const QVariant& value);
    bool writeDictionary(const QVariantMap& entries);
    bool writeArray(const QVariantList& elements);
    bool writeScalar(const QVariant& value);
    bool writeString(const QString& string);
    void writeData(const QByteArray& data);
    void indent() { text_.append(qsizetype{4} * depth_, ' '); }

    QByteArray text_;
    int depth_ = 0;
};

/// Reads a property list in the XML format, and only what is written as property lists write it.
///
/// A well-formed number or date that no QVariant of property lists can hold costs itself, not the list: it is left out
/// of the array or dictionary that it stands in.
class XmlPropertyListReader {
public:
    explicit XmlPropertyListReader(const QByteArray& bytes);

    /// Nothing, with the reason in error(), when the bytes are no property list.
    std::optional<QVariant> read();

    propertylist::ParseError error() const;

private:
    QVariant readDocument();
    QVariant readValue();
    QVariant readScalar();
    QVariant readArray();
    QVariant readDictionary();
    QVariant fail(const QString& reason);

    QXmlStreamReader xml_;
    int depth_ = 0;
};

/// Writes one value as a property list in the XML format.
class XmlPropertyListWriter {
public:
    XmlPropertyListWriter();

    /// False when the value, or one inside it, cannot stand in such a list.
    bool write(const QVariant& value);

    /// The whole list, after write().
    QByteArray text() const;

private:
    bool writeValue(const QVariant& value);
    bool writeContainer(const QVariant& value);
    bool writeText(const QString& element, const QString& text);
    bool writeDate(const QVariant& value);

    QByteArray text_;
    QXmlStreamWriter xml_{&text_};
    int depth_ = 0;
};

} // namespace quillon

/// The binary format, by libplist. What that library would crash on, expand without end or read as something else is
/// refused before it gets there.
namespace quillon::libplist {

/// A date that libplist cannot tell is left out of the array or dictionary that it stands in.
std::optional<QVariant> readBinary(const QByteArray& bytes, propertylist::ParseError& error);

/// Nothing for a value that the format cannot hold.
std::optional<QByteArray> writeBinary(const QVariant& value);

} // namespace quillon::libplist
