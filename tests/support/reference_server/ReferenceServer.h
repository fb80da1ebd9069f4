#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QUrl>

namespace quillon {

/// The maker's configuration service, as a process of its own on loopback; reference_server.py says what it can do.
class ReferenceServer {
public:
    /// Speaks HTTPS when there is a certificate; `name` is the host in its address and must mean this machine.
    explicit ReferenceServer(const QString& certificate = {}, const QString& name = QStringLiteral("127.0.0.1"));
    ReferenceServer(const ReferenceServer&) = delete;
    ReferenceServer& operator=(const ReferenceServer&) = delete;
    ~ReferenceServer();

    /// Scheme, host and port.
    const QString& address() const { return address_; }
    QUrl url(const QString& path) const { return QUrl(address_ + path); }

    /// Treats every request from now on like this; an empty name ends it.
    void play(const QString& fault, const QString& detail = {});
    void setStatus(int status);
    /// What has been asked: "path", "body", "form", "headers" of each request.
    QJsonArray requests();
    /// Bytes that the fault "drip" has sent.
    int dripped();
    /// How many clients have gone while the faults "drip" and "hang" kept them.
    int left();

private:
    QJsonObject command(const QJsonObject& command);
    QByteArray line();

    QProcess process_;
    QString address_;
};

} // namespace quillon
