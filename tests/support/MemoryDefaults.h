#pragma once

#include "UserDefaults.h"

namespace quillon {

/// User defaults that live in memory; what is stored can be looked at.
class MemoryDefaults final : public UserDefaults {
public:
    QVariantMap stored;
    QString refuses; ///< a key that holds nothing

protected:
    QVariant storedValue(const QString& key) const override { return stored.value(key); }
    void storeValue(const QString& key, const QVariant& value) override
    {
        if (key == refuses)
            return;
        if (value.isValid())
            stored.insert(key, value);
        else
            stored.remove(key);
    }
};

} // namespace quillon
