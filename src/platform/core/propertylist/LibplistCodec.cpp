#include "LibplistCodec.h"

#include "PropertyList.h"
#include "TextEncoding.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <plist/plist.h>
#include <type_traits>

namespace quillon::libplist {

using namespace Qt::StringLiterals;

namespace {

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
