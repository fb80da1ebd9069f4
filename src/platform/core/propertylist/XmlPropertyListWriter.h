#pragma once

#include <QByteArray>
#include <QVariant>
#include <QXmlStreamWriter>

namespace quillon {

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
