#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace quillon {

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

} // namespace quillon
