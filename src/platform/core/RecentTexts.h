#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quillon {

/// Shares the texts that come again and again in a long list, such as the keys of its records: a text met a moment ago
/// costs no memory of its own. The bytes given must outlive this.
class RecentTexts {
public:
    /// The text of ASCII bytes.
    QString text(std::string_view ascii)
    {
        if (ascii.empty() || ascii.size() > longestShared)
            return fromAscii(ascii);
        Slot& slot = slots_[slotOf(ascii)];
        if (slot.bytes != ascii)
            slot = {ascii, fromAscii(ascii)};
        return slot.text;
    }

private:
    struct Slot {
        std::string_view bytes;
        QString text;
    };

    static constexpr int slotBits = 7;
    static constexpr size_t longestShared = 40;

    static QString fromAscii(std::string_view ascii)
    {
        return QString::fromLatin1(ascii.data(), static_cast<qsizetype>(ascii.size()));
    }

    /// The length and the bytes at both ends tell the keys of a record apart.
    static size_t slotOf(std::string_view ascii)
    {
        const size_t endLength = std::min(ascii.size(), sizeof(uint64_t));
        uint64_t front = 0;
        uint64_t back = 0;
        std::memcpy(&front, ascii.data(), endLength);
        std::memcpy(&back, ascii.data() + (ascii.size() - endLength), endLength);
        const uint64_t mixed =
            (front ^ (back << 7 | back >> 57) ^ ascii.size()) * 0x9E3779B97F4A7C15; // Fibonacci hashing
        return mixed >> (64 - slotBits);
    }

    std::array<Slot, size_t{1} << slotBits> slots_;
};

} // namespace quillon
