#pragma once

#include <QString>

namespace quillon::backupphase {

/// The English phrase of a raw phase word of the status report; an unknown word is its own phrase.
QString phrase(const QString& rawPhase);

/// Localisation key of an English phrase; null for a phrase that has none and is shown as it is.
const char* localizationKey(const QString& phrase);

} // namespace quillon::backupphase
