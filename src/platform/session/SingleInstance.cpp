#include "SingleInstance.h"

#include "FileLock.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QUrl>

#include <chrono>

namespace quillon {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr auto patience = 2s;
constexpr auto pauseBetweenTries = 20ms;
constexpr auto timeForRequest = 5s;

constexpr auto present = "present";
constexpr char beginOfQuestion = '{';                // no other request begins so
constexpr qint64 longestRequest = qint64{16} * 1024; // with a path of 4096 bytes, three characters each
constexpr qint64 longestToken = 512;
constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr QByteArrayView confirmation("presenting");

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
    const QByteArray token = qgetenv(tokenVariable);
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

/// The user's own folder for sockets, which the session's end empties; empty where the session has none.
QString runtimeFolder()
{
    // Qt would fall back to a fixed name below the folder for temporary files, which another user can take first.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return {};
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

/// Qt shows the token to the compositor with the next window that it brings to the front. A token serves once, and is
/// of no use to programs that are started later.
class TokenInEnvironment {
public:
    explicit TokenInEnvironment(const QByteArray& token) { qputenv(tokenVariable, token); }
    TokenInEnvironment(const TokenInEnvironment&) = delete;
    TokenInEnvironment& operator=(const TokenInEnvironment&) = delete;
    ~TokenInEnvironment() { qunsetenv(tokenVariable); }
};

/// A name for the socket. The file's own path may be longer than the 104 bytes (macOS) or 108 bytes (Linux) that the
/// address of a socket holds, unix(4) and unix(7).
QString socketName(const QString& lockFile)
{
    const QByteArray path = QFileInfo(lockFile).canonicalFilePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().first(16);
    return "instance-"_L1 + QLatin1StringView(hash);
}

/// A line, or as much as a line may be.
bool holdsRequest(const QLocalSocket& client)
{
    return client.canReadLine() || client.bytesAvailable() >= longestRequest;
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

SingleInstance::SingleInstance(const QString& lockFile, const QByteArrayList& requests)
    : requests_(requests)
    , lock_(lockFile)
{
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::answerNextClient);
}

bool SingleInstance::acquire()
{
    if (isFirst_)
        return true;
    isFirst_ = claim() == FileLock::Outcome::Taken;
    if (isFirst_) {
        listen();
        reopenWatch_ = makeReopenWatch([this] { Q_EMIT presentRequested(); });
    }
    return isFirst_;
}

bool SingleInstance::isHeldByAnother()
{
    const bool held = !isFirst_ && claim() == FileLock::Outcome::Anothers;
    if (!isFirst_)
        lock_.release();
    return held;
}

FileLock::Outcome SingleInstance::claim()
{
    const QString folder = QFileInfo(lock_.path()).path();
    if (!makePrivateFolder(folder)) {
        errorString_ = u"cannot write in the folder %1"_s.arg(folder);
        return FileLock::Outcome::Impossible;
    }
    const auto outcome = lock_.tryLock();
    if (outcome == FileLock::Outcome::Anothers)
        errorString_ = u"another instance runs on the folder %1"_s.arg(folder);
    else if (outcome == FileLock::Outcome::Impossible)
        errorString_ = u"cannot lock %1: %2"_s.arg(lock_.path(), lock_.errorString());
    return outcome;
}

void SingleInstance::listen()
{
    QString place = runtimeFolder();
    if (place.isEmpty()) {
        ownFolder_ = std::make_unique<QTemporaryDir>();
        place = ownFolder_->path();
    }
    const QString name = QDir(place).filePath(socketName(lock_.path()));
    QLocalServer::removeServer(name); // left by a crash: whoever listened there has lost the lock
    if (!server_.listen(name)) {
        qWarning("a second start will not bring this one to the front: %ls", qUtf16Printable(server_.errorString()));
    }
    lock_.write(QFile::encodeName(server_.fullServerName()));
}

void SingleInstance::answerNextClient()
{
    QLocalSocket* client = server_.nextPendingConnection();
    if (!isPeerOwnUser(client->socketDescriptor())) {
        delete client;
        return;
    }
    connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
    client->setReadBufferSize(longestRequest + longestToken);
    auto* limit = new QTimer(client);
    limit->setSingleShot(true);
    connect(limit, &QTimer::timeout, client, &QLocalSocket::abort);
    connect(client, &QLocalSocket::readyRead, this, [this, client, limit] {
        if (!holdsRequest(*client))
            return;
        client->disconnect(this); // one request a connection
        limit->stop();
        answer(*client);
    });
    limit->start(timeForRequest);
}

void SingleInstance::answer(QLocalSocket& client)
{
    const QByteArray line = client.readLine(longestRequest).trimmed();
    const QByteArray token = client.canReadLine() ? client.readLine(longestToken).trimmed() : QByteArray();
    const TokenInEnvironment shown(token);
    if (line.startsWith(beginOfQuestion)) {
        Q_EMIT asked(line, std::make_shared<Caller>(client));
        return;
    }
    const qsizetype end = line.indexOf(' ');
    const QByteArray request = line.first(end < 0 ? line.size() : end);
    const QString subject = QUrl::fromPercentEncoding(line.mid(request.size() + 1));
    if (request != present && !requests_.contains(request)) {
        client.abort();
        return;
    }
    // Confirmed before the slots run, which may open a menu and wait for the user.
    client.write(confirmation.toByteArray() + '\n');
    client.flush();
    client.disconnectFromServer();
    if (request == present)
        Q_EMIT presentRequested();
    else
        Q_EMIT requested(request, subject);
}

SingleInstance::Start SingleInstance::acquireOrAsk(const QByteArray& request, const QString& subject)
{
    if (acquire())
        return Start::First;
    if (askFirst(request.isEmpty() ? QByteArray(present) : request, subject))
        return Start::Asked;
    return acquire() ? Start::First : Start::Failed; // the other one may just have ended
}

bool SingleInstance::askFirst(const QByteArray& request, const QString& subject) const
{
    const QDeadlineTimer deadline(patience);
    const QByteArray line = subject.isEmpty() ? request : request + ' ' + QUrl::toPercentEncoding(subject);
    while (!ask(line, deadline)) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(pauseBetweenTries.count());
    }
    return true;
}

bool SingleInstance::ask(const QByteArray& line, const QDeadlineTimer& deadline) const
{
    InstanceCall call;
    return call.ask(lock_.path(), line, deadline) && call.nextLine(deadline) == confirmation;
}

} // namespace quillon
