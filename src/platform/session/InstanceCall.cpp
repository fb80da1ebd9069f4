#include "InstanceCall.h"

#include "SingleInstance.h"

#include <QFile>

namespace quillon {

namespace {

/// Many times what a reader leaves lying between two looks.
constexpr qint64 longestBacklog = 1 << 20;

int remaining(const QDeadlineTimer& deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

/// What the desktop has given this start, so that a window of it may come to the front: xdg-activation under Wayland.
/// Desktops that don't know it yet take the identifier of the startup notification for one.
QByteArray activationToken()
{
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

} // namespace

Caller::~Caller()
{
    if (connection_)
        connection_->disconnectFromServer();
}

bool Caller::tell(const QByteArray& line)
{
    if (connection_ && connection_->bytesToWrite() > longestBacklog)
        connection_->abort();
    if (!connection_ || connection_->state() != QLocalSocket::ConnectedState)
        return false;
    connection_->write(line + '\n');
    connection_->flush();
    return true;
}

bool InstanceCall::ask(const QString& lockFile, const QByteArray& question, QDeadlineTimer deadline)
{
    QFile address(lockFile);
    if (!address.open(QIODevice::ReadOnly))
        return false;
    first_.connectToServer(QFile::decodeName(address.readAll()));
    if (!first_.waitForConnected(remaining(deadline)) || !isPeerOwnUser(first_.socketDescriptor()))
        return false;
    // The token in a line of its own, which earlier versions leave unread.
    first_.write(question + '\n' + activationToken() + '\n');
    first_.flush();
    return true;
}

std::optional<QByteArray> InstanceCall::nextLine(QDeadlineTimer deadline)
{
    while (!first_.canReadLine()) {
        if (!first_.waitForReadyRead(remaining(deadline)) && !first_.canReadLine())
            return std::nullopt;
    }
    return first_.readLine().chopped(1);
}

} // namespace quillon
