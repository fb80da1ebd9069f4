#include "PeerUser.h"

#include <unistd.h>

namespace quillon {

bool isPeerOwnUser(qintptr socket)
{
    uid_t user = 0;
    gid_t group = 0;
    return getpeereid(static_cast<int>(socket), &user, &group) == 0 && user == geteuid();
}

} // namespace quillon
