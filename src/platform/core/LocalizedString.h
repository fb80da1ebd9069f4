#pragma once

#include <QString>

namespace quillon {

/// The text of a key in the application's main string table; a missing key gives the key itself.
QString localizedString(const char* key);

/// Loads the string table of the user's language; a program calls it once, after it has made its application object.
void installStringTable();

} // namespace quillon
