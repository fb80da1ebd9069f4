#include "PeerUser.h"

#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

bool isPeerOwnUser(qintptr socket)
{
    ucred peer{}; // socket(7)
    socklen_t size = sizeof peer;
    return getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

} // namespace quillon
