#pragma once

#include <QString>

namespace quillon {

/// The text of a key in the application's main string table; a missing key gives the key itself.
QString localizedString(const char* key);

/// Tag of the string table for this user, such as "de" or "pt_BR": that of the first language in the user's own order
/// for which there is a table, else "en". A table serves all countries that write its language in its script.
QString userLanguage();

/// Loads the string table of a language, and Qt's own texts in it, in place of what was loaded before; what the table
/// lacks is taken from the English one. A program calls it once, after it has made its application object.
void installStringTable(const QString& language = userLanguage());

} // namespace quillon
