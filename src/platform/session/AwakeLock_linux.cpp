#include "AwakeLock_linux.h"

namespace quillon {

std::unique_ptr<AwakeLock> makeAwakeLock()
{
    return std::make_unique<LogindAwakeLock>(QDBusConnection::systemBus());
}

} // namespace quillon
