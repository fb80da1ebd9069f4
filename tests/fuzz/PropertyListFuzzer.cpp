#include "PropertyList.h"

#include <cstdint>
#include <cstdlib>

using namespace quillon;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Whatever can be read can be written again, and means the same.
void checkOldStyle(const QByteArray& bytes)
{
    propertylist::ParseError error;
    const auto value = propertylist::parseOldStyle(bytes, &error);
    if (!value) {
        require(!error.message.isEmpty() && error.line > 0 && error.column > 0);
        return;
    }
    const auto text = propertylist::toOldStyle(*value);
    require(text && propertylist::parseOldStyle(*text) == value);
    if (const auto xml = propertylist::toXml(*value))
        require(propertylist::parse(*xml) == value);
    if (const auto binary = propertylist::toBinary(*value))
        require(propertylist::parse(*binary) == value);
}

/// The other formats have numbers that are not written as they were read, or equal nothing (NaN), and dates that XML
/// rounds: what was written once stays the same from then on.
void checkAnyFormat(const QByteArray& bytes)
{
    const auto value = propertylist::parse(bytes);
    if (!value)
        return;
    if (const auto xml = propertylist::toXml(*value)) {
        const auto back = propertylist::parse(*xml);
        require(back && propertylist::toXml(*back) == xml);
    }
    if (const auto binary = propertylist::toBinary(*value)) {
        const auto back = propertylist::parse(*binary);
        require(back && propertylist::toBinary(*back) == binary);
    }
    if (const auto text = propertylist::toOldStyle(*value))
        require(propertylist::parseOldStyle(*text).has_value());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    checkOldStyle(bytes);
    checkAnyFormat(bytes);
    return 0;
}
