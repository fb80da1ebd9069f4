#include "PropertyList.h"
#include "PropertyListFormats.h"
#include "Text.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>
#include <plist/plist.h>
#include <type_traits>

namespace quillon::libplist {

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

/// Whether the containers can be read out in bounded memory and depth. Objects refer to each other by number, so a few
/// bytes can name a list without end.
bool checkBinaryPropertyList(const QByteArray& bytes, propertylist::ParseError& error)
{
    if (Walk(bytes).run())
        return true;
    error = {u"the binary property list is damaged, nested too deeply or too large"_s};
    return false;
}

struct NodeDeleter {
    void operator()(plist_t node) const { plist_free(node); }
};
using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, NodeDeleter>;

struct Free {
    void operator()(char* memory) const { std::free(memory); }
};
using CString = std::unique_ptr<char, Free>;

// libplist counts sizes in 32 bits and dates in 32-bit seconds from this instant.
constexpr qint64 maximumSize = std::numeric_limits<int32_t>::max();
constexpr qint64 referenceDate = 978'307'200'000; // 2001-01-01T00:00:00Z in milliseconds since 1970

/// Nothing for a kind that QVariants of property lists do not have, such as the references of keyed archives; invalid
/// for a value that is only too large, which costs itself and not the list.
std::optional<QVariant> fromNode(plist_t node);

std::optional<QVariant> dateFromNode(plist_t node)
{
    int32_t seconds = 0;
    int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    // What does not fit into 32 bits arrives as the smallest number.
    if (seconds == std::numeric_limits<int32_t>::min())
        return QVariant();
    const qint64 fraction = std::lround(microseconds / 1000.0);
    const qint64 milliseconds = qint64{seconds} * 1000 + (seconds < 0 ? -fraction : fraction);
    return QDateTime::fromMSecsSinceEpoch(referenceDate + milliseconds, Qt::UTC);
}

std::optional<QVariant> stringFromNode(plist_t node)
{
    uint64_t length = 0;
    const char* const text = plist_get_string_ptr(node, &length);
    const QByteArrayView view(text, text ? static_cast<qsizetype>(length) : 0);
    if (view.contains('\0')) // libplist could never write it again
        return std::nullopt;
    return strictUtf8(view);
}

std::optional<QVariant> arrayFromNode(plist_t node)
{
    QVariantList elements;
    plist_array_iter rawIterator = nullptr;
    plist_array_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&std::free)> iterator(rawIterator, &std::free);
    for (plist_t child = nullptr; plist_array_next_item(node, iterator.get(), &child), child;) {
        auto element = fromNode(child);
        if (!element)
            return std::nullopt;
        if (element->isValid())
            elements.append(*std::move(element));
    }
    return elements;
}

std::optional<QVariant> dictionaryFromNode(plist_t node)
{
    QVariantMap entries;
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&std::free)> iterator(rawIterator, &std::free);
    while (true) {
        char* rawKey = nullptr;
        plist_t child = nullptr;
        plist_dict_next_item(node, iterator.get(), &rawKey, &child);
        const CString key(rawKey);
        if (!child)
            return entries;
        const auto name = strictUtf8(key.get());
        auto entry = fromNode(child);
        if (!name || !entry)
            return std::nullopt;
        if (entry->isValid())
            entries.insert(*name, *std::move(entry));
    }
}

std::optional<QVariant> fromNode(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        uint64_t value = 0; // carries negative numbers too
        plist_get_uint_val(node, &value);
        return static_cast<qlonglong>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING:
        return stringFromNode(node);
    case PLIST_DATE:
        return dateFromNode(node);
    case PLIST_DATA: {
        uint64_t length = 0;
        const char* const data = plist_get_data_ptr(node, &length);
        return QByteArray(data, static_cast<qsizetype>(length));
    }
    case PLIST_ARRAY:
        return arrayFromNode(node);
    case PLIST_DICT:
        return dictionaryFromNode(node);
    default:
        return std::nullopt;
    }
}

std::optional<QVariant> convert(const Node& root, propertylist::ParseError& error)
{
    if (!root) {
        error = {u"not a property list"_s};
        return std::nullopt;
    }
    auto value = fromNode(root.get());
    if (value && value->isValid())
        return value;
    error = {u"the property list holds a value that cannot be represented"_s};
    return std::nullopt;
}

/// Makes libplist's tree of a value.
class NodeMaker {
public:
    /// Null for a value that the format cannot hold.
    Node make(const QVariant& value)
    {
        switch (value.typeId()) {
        case QMetaType::Bool:
            return Node(plist_new_bool(value.toBool()));
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
            return Node(plist_new_uint(static_cast<uint64_t>(value.toLongLong())));
        case QMetaType::Float:
        case QMetaType::Double:
            return Node(plist_new_real(value.toDouble()));
        case QMetaType::QString: {
            const auto text = utf8(value.toString());
            return Node(text ? plist_new_string(text->constData()) : nullptr);
        }
        case QMetaType::QByteArray: {
            const QByteArray data = value.toByteArray();
            return Node(plist_new_data(data.constData(), static_cast<uint64_t>(data.size())));
        }
        case QMetaType::QDateTime:
            return makeDate(value.toDateTime());
        case QMetaType::QVariantList:
        case QMetaType::QVariantMap:
            return makeContainer(value);
        default:
            return nullptr;
        }
    }

private:
    static std::optional<QByteArray> utf8(const QString& text)
    {
        return text.isValidUtf16() && !text.contains(QChar::Null) ? std::optional(text.toUtf8()) : std::nullopt;
    }

    static Node makeDate(const QDateTime& date)
    {
        const qint64 milliseconds = date.toMSecsSinceEpoch() - referenceDate;
        // Rounded down, so that the fraction is never negative: libplist drops the sign of the whole otherwise.
        const qint64 seconds = static_cast<qint64>(std::floor(static_cast<double>(milliseconds) / 1000.0));
        const qint64 fraction = milliseconds - seconds * 1000;
        if (!date.isValid() || seconds <= std::numeric_limits<int32_t>::min() ||
            seconds > std::numeric_limits<int32_t>::max())
            return nullptr;
        return Node(plist_new_date(static_cast<int32_t>(seconds), static_cast<int32_t>(fraction * 1000)));
    }

    Node makeContainer(const QVariant& value)
    {
        if (depth_ == propertylist::maximumNesting)
            return nullptr;
        ++depth_;
        Node node =
            value.typeId() == QMetaType::QVariantMap ? makeDictionary(value.toMap()) : makeArray(value.toList());
        --depth_;
        return node;
    }

    Node makeArray(const QVariantList& elements)
    {
        Node node(plist_new_array());
        for (const QVariant& element : elements) {
            Node child = make(element);
            if (!child)
                return nullptr;
            plist_array_append_item(node.get(), child.release());
        }
        return node;
    }

    Node makeDictionary(const QVariantMap& entries)
    {
        Node node(plist_new_dict());
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            const auto key = utf8(entry.key());
            Node child = make(entry.value());
            if (!key || !child)
                return nullptr;
            plist_dict_set_item(node.get(), key->constData(), child.release());
        }
        return node;
    }

    int depth_ = 0;
};

} // namespace

std::optional<QVariant> readBinary(const QByteArray& bytes, propertylist::ParseError& error)
{
    if (bytes.size() > maximumSize) {
        error = {u"the property list is too large"_s};
        return std::nullopt;
    }
    if (!checkBinaryPropertyList(bytes, error))
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_bin(bytes.constData(), static_cast<uint32_t>(bytes.size()), &root);
    return convert(Node(root), error);
}

std::optional<QByteArray> writeBinary(const QVariant& value)
{
    const Node root = NodeMaker().make(value);
    if (!root)
        return std::nullopt;
    char* data = nullptr;
    uint32_t length = 0;
    plist_to_bin(root.get(), &data, &length);
    const CString owner(data);
    return QByteArray(data, static_cast<qsizetype>(length));
}

} // namespace quillon::libplist
