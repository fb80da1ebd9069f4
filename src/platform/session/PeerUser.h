#pragma once

#include <QtGlobal>

namespace quillon {

/// Whether the process at the other end of a connected local socket belongs to this one's user.
bool isPeerOwnUser(qintptr socket);

} // namespace quillon
