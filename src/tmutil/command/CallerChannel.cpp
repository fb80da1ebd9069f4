#include "CallerChannel.h"

#include <sys/socket.h>

namespace quillon {

void CallerChannel::tellReady() const
{
    send("ready\n");
}

void CallerChannel::tellEnd(ExitStatus status, const QString& message) const
{
    send(QByteArray::number(static_cast<int>(status)) + ' ' + message.simplified().toUtf8() + '\n');
}

void CallerChannel::send(const QByteArray& line)
{
    // Lines this short go out whole. That nobody listens any more is no concern of the backup's.
    [[maybe_unused]] const auto sent =
        ::send(descriptor, line.constData(), static_cast<size_t>(line.size()), MSG_NOSIGNAL);
}

} // namespace quillon
