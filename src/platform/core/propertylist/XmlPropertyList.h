#pragma once

#include "PropertyList.h"

#include <QByteArray>
#include <QVariant>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace quillon {

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
