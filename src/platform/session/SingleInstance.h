#pragma once

#include <QByteArrayList>
#include <QFile>
#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include <memory>

class QDeadlineTimer;
class QLocalSocket;

namespace quillon {

/// Sees to it that one instance at most runs on a settings folder. Main thread only.
///
/// The claim is a kernel lock on a file in the folder: it ends with the process, however that ends. The file names the
/// socket over which a later start of the same user asks the first instance to present itself. Where the system turns a
/// second start into a message to the first instance, that message counts as the same request. With the request comes
/// the token by which the later start could have come to the front; while the signal's slots run it is the first's.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    /// The folder is made when it does not exist.
    /// @param requests what else than to present itself the first instance can be asked for: small letters and dashes
    explicit SingleInstance(const QString& folder, const QByteArrayList& requests = {});

    /// True when this is the one instance, until the object is destroyed. False when another one is, or when the folder
    /// cannot be used: errorString() says which.
    [[nodiscard]] bool acquire();

    /// Whether another process is the one instance now. The claim is not taken.
    [[nodiscard]] bool isHeldByAnother();

    /// Asks the instance that made acquire() fail to come to the front; true when it has confirmed. Blocks for two
    /// seconds at most and is meant for start-up, ahead of the event loop. After a false the first instance may just
    /// have ended: acquire() is worth another try.
    [[nodiscard]] bool askFirstToPresent();
    /// The same for any request, which the first instance has to know.
    [[nodiscard]] bool askFirst(const QByteArray& request);

    /// Why the last acquire() returned false: one line in English.
    QString errorString() const { return errorString_; }

Q_SIGNALS:
    /// Another start on the same folder, or of the same application, asks this one to come to the front.
    void presentRequested();
    /// The same for one of the requests that the constructor was given.
    void requested(const QByteArray& request);

private:
    enum class Claim { Ours, Anothers, Impossible };
    Claim claim();
    void listen();
    void answerNextClient();
    void answer(QLocalSocket& client);
    bool ask(const QByteArray& request, const QDeadlineTimer& deadline) const;

    QString folder_;
    QByteArrayList requests_;
    QFile lockFile_;
    std::unique_ptr<QTemporaryDir> ownFolder_; ///< of the socket, where the session has none for sockets
    QLocalServer server_; // below the lock file, so that the socket is gone before the lock is free
    std::unique_ptr<QObject> reopenWatch_;
    QString errorString_;
};

} // namespace quillon
