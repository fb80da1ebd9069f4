#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QPointer>
#include <QString>

#include <optional>

namespace quillon {

/// Somebody of the same user who has asked the first instance something and waits for lines in answer. The call ends
/// when this goes away.
class Caller {
public:
    explicit Caller(QLocalSocket& connection)
        : connection_(&connection)
    {
    }
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;
    ~Caller();

    /// False once nobody is there any more; one that reads nothing of what it is told is hung up on.
    bool tell(const QByteArray& line);

private:
    QPointer<QLocalSocket> connection_;
};

/// A call of the first instance. It blocks, and is meant for programs without windows, or ahead of the event loop.
class InstanceCall {
public:
    /// Asks the instance that listens at the address in the lock file; false when there is none of this user.
    bool ask(const QString& lockFile, const QByteArray& question, QDeadlineTimer deadline);
    /// The next line of the answer; nothing when the other end has hung up, or at the deadline.
    std::optional<QByteArray> nextLine(QDeadlineTimer deadline);

private:
    QLocalSocket first_;
};

} // namespace quillon
