#include "LibplistCodec.h"
#include "PropertyList.h"

#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Layout: "bplist00", objects, table of their offsets, trailer of 32 bytes (CFBinaryPList.c of Apple's CoreFoundation).
constexpr quint64 headerSize = 8;
constexpr quint64 trailerSize = 32;
constexpr quint64 firstCountedKind = 0x4; // data
constexpr quint64 asciiKind = 0x5;
constexpr quint64 utf16Kind = 0x6;
constexpr quint64 arrayKind = 0xA;
constexpr quint64 setKind = 0xC;
constexpr quint64 dictionaryKind = 0xD;

/// Objects that one list may come to when everything it shares is written out.
constexpr quint64 maximumObjects = 1'000'000;

/// Follows the references of a binary property list.
class Walk {
public:
    explicit Walk(QByteArrayView bytes)
        : bytes_(bytes)
    {
    }

    bool run()
    {
        const auto size = static_cast<quint64>(bytes_.size());
        if (size < headerSize + trailerSize)
            return false;
        const quint64 trailer = size - trailerSize;
        offsetSize_ = number(trailer + 6, 1);
        referenceSize_ = number(trailer + 7, 1);
        objectCount_ = number(trailer + 8, 8);
        offsetTable_ = number(trailer + 24, 8);
        const auto isSize = [](quint64 bytes) { return bytes >= 1 && bytes <= 8; };
        if (!isSize(offsetSize_) || !isSize(referenceSize_) || offsetTable_ > trailer ||
            objectCount_ > (trailer - offsetTable_) / offsetSize_)
            return false;
        return visit(number(trailer + 16, 8), 0);
    }

private:
    /// A big-endian number of 1 to 8 bytes that lie within the list.
    quint64 number(quint64 at, quint64 size) const
    {
        quint64 value = 0;
        for (quint64 i = 0; i < size; ++i)
            value = value << 8 | static_cast<quint8>(bytes_[static_cast<qsizetype>(at + i)]);
        return value;
    }

    /// Where an object's contents begin; for kinds that have a count, what it is.
    struct Object {
        quint64 kind = 0;
        quint64 count = 0;
        quint64 at = 0;
    };

    std::optional<Object> object(quint64 index) const
    {
        if (index >= objectCount_)
            return std::nullopt;
        quint64 at = number(offsetTable_ + index * offsetSize_, offsetSize_);
        if (at < headerSize || at >= offsetTable_)
            return std::nullopt;
        const quint64 marker = number(at++, 1);
        quint64 count = marker & 0xF;
        const quint64 kind = marker >> 4;
        if (kind >= firstCountedKind && count == 0xF && !readCount(at, count))
            return std::nullopt;
        return Object{kind, count, at};
    }

    /// A count too large for the marker follows as an integer object.
    bool readCount(quint64& at, quint64& count) const
    {
        if (at >= offsetTable_)
            return false;
        const quint64 marker = number(at++, 1);
        const quint64 size = quint64{1} << (marker & 0xF);
        if (marker >> 4 != 0x1 || size > 8 || size > offsetTable_ - at)
            return false;
        count = number(at, size);
        at += size;
        return true;
    }

    bool visit(quint64 index, int depth)
    {
        const auto found = object(index);
        if (!found || ++visited_ > maximumObjects)
            return false;
        const bool dictionary = found->kind == dictionaryKind;
        if (!dictionary && found->kind != arrayKind && found->kind != setKind)
            return true;
        const quint64 entrySize = dictionary ? 2 * referenceSize_ : referenceSize_;
        if (depth == propertylist::maximumNesting || found->count > (offsetTable_ - found->at) / entrySize)
            return false;
        const quint64 keys = dictionary ? found->count : 0;
        for (quint64 i = 0; i < keys + found->count; ++i) {
            const quint64 reference = number(found->at + i * referenceSize_, referenceSize_);
            if (i < keys ? !isKey(reference) : !visit(reference, depth + 1))
                return false;
        }
        return true;
    }

    /// Whether the object is a text without NUL: libplist's assertions end the program at any other key.
    bool isKey(quint64 index) const
    {
        const auto found = object(index);
        if (!found || (found->kind != asciiKind && found->kind != utf16Kind))
            return false;
        const quint64 unitSize = found->kind == utf16Kind ? 2 : 1;
        if (found->count > (offsetTable_ - found->at) / unitSize)
            return false;
        for (quint64 i = 0; i < found->count; ++i) {
            if (number(found->at + i * unitSize, unitSize) == 0)
                return false;
        }
        return true;
    }

    const QByteArrayView bytes_;
    quint64 offsetSize_ = 0;
    quint64 referenceSize_ = 0;
    quint64 objectCount_ = 0;
    quint64 offsetTable_ = 0;
    quint64 visited_ = 0;
};

} // namespace

bool checkBinaryPropertyList(const QByteArray& bytes, propertylist::ParseError& error)
{
    if (Walk(bytes).run())
        return true;
    error = {u"the binary property list is damaged, nested too deeply or too large"_s};
    return false;
}

} // namespace quillon
