#pragma once

#include <string>

namespace quillon {

/// ICU identifier of the locale that the user wants dates and durations in, such as "de_DE", asked for anew. The
/// keyword "hours" (h23 or h12) is present when the user forces a 24- or 12-hour clock on it.
///
/// On Linux it is the first of LC_ALL, LC_TIME and LANG that is set; the locales "C" and "POSIX", which belong to no
/// country, read as "en_US". On macOS it is the locale of the user's settings.
std::string userLocale();

} // namespace quillon
