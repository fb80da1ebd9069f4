#pragma once

#include <QString>

#include <unicode/unistr.h>

namespace quillon {

inline icu::UnicodeString toIcu(const QString& text)
{
    return {text.utf16(), static_cast<int32_t>(text.size())};
}

inline QString fromIcu(const icu::UnicodeString& text)
{
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace quillon
