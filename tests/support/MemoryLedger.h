#pragma once

#include "Ledger.h"

#include <algorithm>

namespace quillon {

/// A ledger that lasts as long as the test.
class MemoryLedger final : public Ledger {
public:
    bool isReadable = true;

    void write(std::span<LedgerEntry> entries, Date /*now*/) override
    {
        for (LedgerEntry& entry : entries) {
            if (entry.id == 0)
                entry.id = ++lastId_;
            const auto known = std::ranges::find(entries_, entry.id, &LedgerEntry::id);
            if (known == entries_.end())
                entries_.push_back(entry);
            else
                *known = entry;
        }
        std::ranges::stable_sort(entries_, &LedgerEntry::isNewerThan);
        Q_EMIT changed();
    }
    std::optional<std::vector<LedgerEntry>> read(const LedgerFilter& filter = {}) override
    {
        std::vector<LedgerEntry> taken;
        for (const LedgerEntry& entry : entries_) {
            if (filter.takes(entry) && std::ssize(taken) < filter.most)
                taken.push_back(entry);
        }
        return isReadable ? std::optional(taken) : std::nullopt;
    }

private:
    std::vector<LedgerEntry> entries_;
    std::int64_t lastId_ = 0;
};

} // namespace quillon
