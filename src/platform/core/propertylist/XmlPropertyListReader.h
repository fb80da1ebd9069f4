#pragma once

#include "PropertyList.h"

#include <QXmlStreamReader>

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

} // namespace quillon
