#include "LibplistCodec.h"

#include "BinaryPropertyListCheck.h"
#include "PropertyListLimits.h"
#include "StrictUtf8.h"
#include "XmlPropertyListCheck.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>
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

enum class Format { Xml, Binary };

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

std::optional<QVariant> fromNode(plist_t node);

std::optional<QVariant> dateFromNode(plist_t node)
{
    int32_t seconds = 0;
    int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    // What does not fit into 32 bits arrives as the smallest number.
    if (seconds == std::numeric_limits<int32_t>::min())
        return std::nullopt;
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
        entries.insert(*name, *std::move(entry));
    }
}

/// Nothing for a kind that QVariants of property lists do not have, such as the references of keyed archives.
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
    if (!value)
        error = {u"the property list holds a value that cannot be represented"_s};
    return value;
}

bool isXmlCharacter(char16_t unit)
{
    // Extensible Markup Language 1.0, production Char.
    return unit >= 0x20 ? unit < 0xFFFE : unit == u'\t' || unit == u'\n' || unit == u'\r';
}

/// Makes libplist's tree of a value for one format.
class NodeMaker {
public:
    explicit NodeMaker(Format format)
        : format_(format)
    {
    }

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
    std::optional<QByteArray> utf8(const QString& text) const
    {
        const auto fits = [this](QChar c) {
            return format_ == Format::Xml ? isXmlCharacter(c.unicode()) : !c.isNull();
        };
        if (!text.isValidUtf16() || !std::all_of(text.begin(), text.end(), fits))
            return std::nullopt;
        return text.toUtf8();
    }

    Node makeDate(const QDateTime& date) const
    {
        const qint64 milliseconds = date.toMSecsSinceEpoch() - referenceDate;
        // Rounded down, so that the fraction is never negative: libplist drops the sign of the whole otherwise.
        const qint64 seconds = static_cast<qint64>(std::floor(static_cast<double>(milliseconds) / 1000.0));
        const qint64 fraction = format_ == Format::Xml ? 0 : milliseconds - seconds * 1000;
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

    const Format format_;
    int depth_ = 0;
};

bool tooLarge(const QByteArray& bytes, propertylist::ParseError& error)
{
    if (bytes.size() <= maximumSize)
        return false;
    error = {u"the property list is too large"_s};
    return true;
}

} // namespace

std::optional<QVariant> readXml(const QByteArray& bytes, propertylist::ParseError& error)
{
    if (tooLarge(bytes, error) || !checkXmlPropertyList(bytes, error))
        return std::nullopt;
    plist_t root = nullptr;
    const QByteArrayView text = withoutByteOrderMark(bytes);
    plist_from_xml(text.data(), static_cast<uint32_t>(text.size()), &root);
    return convert(Node(root), error);
}

std::optional<QVariant> readBinary(const QByteArray& bytes, propertylist::ParseError& error)
{
    if (tooLarge(bytes, error) || !checkBinaryPropertyList(bytes, error))
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_bin(bytes.constData(), static_cast<uint32_t>(bytes.size()), &root);
    return convert(Node(root), error);
}

std::optional<QByteArray> writeXml(const QVariant& value)
{
    const Node root = NodeMaker(Format::Xml).make(value);
    if (!root)
        return std::nullopt;
    char* text = nullptr;
    uint32_t length = 0;
    plist_to_xml(root.get(), &text, &length);
    const CString owner(text);
    // libplist writes a carriage return as it is, and XML readers take that for a line feed.
    return QByteArray(text, static_cast<qsizetype>(length)).replace('\r', "&#13;");
}

std::optional<QByteArray> writeBinary(const QVariant& value)
{
    const Node root = NodeMaker(Format::Binary).make(value);
    if (!root)
        return std::nullopt;
    char* data = nullptr;
    uint32_t length = 0;
    plist_to_bin(root.get(), &data, &length);
    const CString owner(data);
    return QByteArray(data, static_cast<qsizetype>(length));
}

} // namespace quillon::libplist
