#pragma once

#include <QByteArray>

namespace quillon {

/// A status text as the system's tool prints it during a backup, without its heading: about 1 KB.
QByteArray statusText();

/// An array of such texts, of about this many bytes.
QByteArray statusTexts(qsizetype size);

} // namespace quillon
