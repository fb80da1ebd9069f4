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
