#pragma once

#include "FileLock.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTemporaryDir>
#include <QtGlobal>

#include <functional>
#include <memory>
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

/// Whether the process at the other end of a connected local socket belongs to this one's user.
bool isPeerOwnUser(qintptr socket);

/// Calls `reopened`, from the event loop and until it is destroyed, when the user starts the application while it runs
/// and the system starts no second process for that but tells this one. Null on systems that always start a process.
std::unique_ptr<QObject> makeReopenWatch(const std::function<void()>& reopened);

/// Sees to it that one instance at most of a program runs.
///
/// The claim is the lock of a file, which ends with the process, however that ends. The file names the socket over
/// which a later start of the same user asks the first instance to present itself. Where the system turns a second
/// start into a message to the first instance, that message counts as the same request. With the request comes the
/// token by which the later start could have come to the front; while the signal's slots run it is the first's.
/// Over the same socket other programs of the user ask questions, one JSON object a call (InstanceCall).
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    /// The folder of the lock file is made when it does not exist.
    /// @param requests what else than to present itself the first instance can be asked for: small letters and dashes
    explicit SingleInstance(const QString& lockFile, const QByteArrayList& requests = {});

    /// True when this is the one instance, until the object is destroyed. False when another one is, or when the file
    /// cannot be locked: errorString() says which.
    [[nodiscard]] bool acquire();

    /// Whether another process is the one instance now. The claim is not taken.
    [[nodiscard]] bool isHeldByAnother();

    enum class Start {
        First,  ///< as after acquire()
        Asked,  ///< another one is the one instance, and has confirmed the request
        Failed, ///< errorString() says why
    };
    /// Acquires, or asks the instance that is there to come to the front, or for another request that it has to know,
    /// with what that is about: a path, for example. Blocks for two seconds at most and is meant for start-up, ahead of
    /// the event loop.
    [[nodiscard]] Start acquireOrAsk(const QByteArray& request = {}, const QString& subject = {});

    /// Why this is not the one instance: one line in English.
    QString errorString() const { return errorString_; }

Q_SIGNALS:
    /// Another start on the same file, or of the same application, asks this one to come to the front.
    void presentRequested();
    /// The same for one of the requests that the constructor was given.
    void requested(const QByteArray& request, const QString& subject);
    /// A question in one line, which is a JSON object or means to be one. It is answered until nobody keeps the caller.
    void asked(const QByteArray& question, const std::shared_ptr<quillon::Caller>& caller);

private:
    FileLock::Outcome claim();
    void listen();
    void answerNextClient();
    void answer(QLocalSocket& client);
    bool askFirst(const QByteArray& request, const QString& subject) const;
    bool ask(const QByteArray& line, const QDeadlineTimer& deadline) const;

    QByteArrayList requests_;
    FileLock lock_;
    bool isFirst_ = false;
    std::unique_ptr<QTemporaryDir> ownFolder_; ///< of the socket, where the session has none for sockets
    QLocalServer server_;                      // below the lock, so that the socket is gone before the lock is free
    std::unique_ptr<QObject> reopenWatch_;
    QString errorString_;
};

} // namespace quillon
