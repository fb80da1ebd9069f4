#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace quillon {

/// ICU identifier of the locale that the user wants dates and durations in, such as "de_DE", asked for anew. The
/// keyword "hours" (h23 or h12) is present when the user forces a 24- or 12-hour clock on it.
///
/// On Linux it is the first of LC_ALL, LC_TIME and LANG that is set; the locales "C" and "POSIX", which belong to no
/// country, read as "en_US". On macOS it is the locale of the user's settings.
std::string userLocale();

/// The text of a key in the application's main string table; a missing key gives the key itself.
QString localizedString(const char* key);

/// Tag of the string table, such as "de" or "pt_BR", for somebody who prefers these languages in this order: that of
/// the first for which there is a table, else "en". A table serves all countries that write its language in its script.
QString tableLanguage(const QStringList& preferred);

/// The same for this user.
QString userLanguage();

/// Loads the string table of a language, and Qt's own texts in it, in place of what was loaded before; what the table
/// lacks is taken from the English one. A program calls it once, after it has made its application object.
void installStringTable(const QString& language = userLanguage());

} // namespace quillon
