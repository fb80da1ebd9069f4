#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace quillon {

/// The maker's configuration service, as a process of its own on loopback; reference_server.py says what it can do.
class ReferenceServer {
public:
    /// Speaks HTTPS when there is a certificate; `name` is the host in its address and must mean this machine.
    explicit ReferenceServer(const QStringList& certificate = {}, const QString& name = QStringLiteral("127.0.0.1"))
    {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral("/usr/bin/python3"),
                       QStringList{QStringLiteral(REFERENCE_SERVER), QStringLiteral("--name"), name} + certificate);
        address_ = QString::fromUtf8(line()).trimmed();
    }
    ReferenceServer(const ReferenceServer&) = delete;
    ReferenceServer& operator=(const ReferenceServer&) = delete;
    ~ReferenceServer()
    {
        process_.closeWriteChannel(); // also a test that crashes ends the server this way
        process_.waitForFinished(-1);
    }

    QUrl url(const QString& path = QStringLiteral("/v1/Event/")) const { return QUrl(address_ + path); }

    /// Treats every request from now on like this; an empty name ends it.
    void play(const QString& fault, const QString& detail = {})
    {
        command({{QStringLiteral("fault"), fault}, {QStringLiteral("detail"), detail}});
    }
    /// Obeys a command and tells "requests", each with "path", "body", "form" and "headers", and what else there is.
    QJsonObject command(const QJsonObject& command)
    {
        process_.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
        return QJsonDocument::fromJson(line()).object();
    }
    QJsonArray requests() { return command({})[QStringLiteral("requests")].toArray(); }

private:
    QByteArray line()
    {
        while (!process_.canReadLine() && process_.waitForReadyRead(-1)) {
        }
        EXPECT_TRUE(process_.canReadLine()) << "the reference server is silent";
        return process_.readLine();
    }

    QProcess process_;
    QString address_;
};

/// A certificate for "localhost" made for the moment, which nobody trusts unless told to.
class TestCertificate {
public:
    TestCertificate()
    {
        const QString command =
            QStringLiteral("req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -days 2 "
                           "-subj /CN=localhost -addext subjectAltName=DNS:localhost -keyout %1 -out %1");
        EXPECT_EQ(QProcess::execute(QStringLiteral("openssl"), command.arg(file()).split(u' ')), 0);
    }
    ~TestCertificate() { QSslConfiguration::setDefaultConfiguration(before_); }
    TestCertificate(const TestCertificate&) = delete;
    TestCertificate& operator=(const TestCertificate&) = delete;

    /// What the server has to be told: the certificate and its key, PEM.
    QStringList option() const { return {QStringLiteral("--certificate"), file()}; }
    /// From now on connections trust this certificate and no other.
    void trust() const
    {
        auto configuration = before_;
        configuration.setCaCertificates(QSslCertificate::fromPath(file()));
        QSslConfiguration::setDefaultConfiguration(configuration);
    }

private:
    QString file() const { return folder_.filePath(QStringLiteral("certificate.pem")); }

    const QSslConfiguration before_ = QSslConfiguration::defaultConfiguration();
    QTemporaryDir folder_;
};

} // namespace quillon
