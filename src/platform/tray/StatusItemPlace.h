#pragma once

#include <QString>

namespace quillon {

/// Where the status item would be shown by a program that started now, and why; in English, for reports of faults.
struct StatusItemPlace {
    QString place; ///< "menu bar", "tray" or "bar"
    QString reason;
};

/// Asks the desktop, and waits for up to a second: not for programs that have an interface to keep alive.
StatusItemPlace findStatusItemPlace();

} // namespace quillon
