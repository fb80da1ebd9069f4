#pragma once

#include <QString>

#include <array>
#include <cstdio>

namespace quillon {

/// Formats a number as printf does, ties to the even digit; QString's own formatting rounds them up.
template<typename Number>
QString format(const char* pattern, Number value)
{
    std::array<char, 400> text{}; // a double has at most 309 digits before its point
    std::snprintf(text.data(), text.size(), pattern, value);
    return QString::fromLatin1(text.data());
}

} // namespace quillon
