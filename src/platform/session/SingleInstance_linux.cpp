#include "SingleInstance.h"

#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

bool isPeerOwnUser(qintptr socket)
{
    ucred peer{}; // socket(7)
    socklen_t size = sizeof peer;
    return getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

std::unique_ptr<QObject> makeReopenWatch(const std::function<void()>& /*reopened*/)
{
    return nullptr;
}

} // namespace quillon
