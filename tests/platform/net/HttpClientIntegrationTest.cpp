#include "EventLoop.h"
#include "HttpClient.h"
#include "ScopedEnvironment.h"
#include "VirtualRunLoop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>
#include <QNetworkReply>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <deque>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The maker's configuration service, as a process of its own on loopback; reference_server.py says what it can do.
class ReferenceServer {
public:
    /// Speaks HTTPS when there is a certificate; `name` is the host in its address and must mean this machine.
    explicit ReferenceServer(const QStringList& certificate = {}, const QString& name = u"127.0.0.1"_s)
    {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(u"/usr/bin/python3"_s,
                       QStringList{QStringLiteral(REFERENCE_SERVER), u"--name"_s, name} + certificate);
        address_ = QString::fromUtf8(line()).trimmed();
    }
    ReferenceServer(const ReferenceServer&) = delete;
    ReferenceServer& operator=(const ReferenceServer&) = delete;
    ~ReferenceServer()
    {
        process_.closeWriteChannel(); // also a test that crashes ends the server this way
        process_.waitForFinished(-1);
    }

    QUrl url(const QString& path = u"/v1/Event/"_s) const { return QUrl(address_ + path); }

    /// Treats every request from now on like this; an empty name ends it.
    void play(const QString& fault, const QString& detail = {})
    {
        command({{u"fault"_s, fault}, {u"detail"_s, detail}});
    }
    /// Obeys a command and tells "requests", each with "path", "body", "form" and "headers", and what else there is.
    QJsonObject command(const QJsonObject& command)
    {
        process_.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
        return QJsonDocument::fromJson(line()).object();
    }
    QJsonArray requests() { return command({})[u"requests"_s].toArray(); }

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
        EXPECT_EQ(QProcess::execute(u"openssl"_s, command.arg(file()).split(u' ')), 0);
    }
    ~TestCertificate() { QSslConfiguration::setDefaultConfiguration(before_); }
    TestCertificate(const TestCertificate&) = delete;
    TestCertificate& operator=(const TestCertificate&) = delete;

    /// What the server has to be told: the certificate and its key, PEM.
    QStringList option() const { return {u"--certificate"_s, file()}; }
    /// From now on connections trust this certificate and no other.
    void trust() const
    {
        auto configuration = before_;
        configuration.setCaCertificates(QSslCertificate::fromPath(file()));
        QSslConfiguration::setDefaultConfiguration(configuration);
    }

private:
    QString file() const { return folder_.filePath(u"certificate.pem"_s); }

    const QSslConfiguration before_ = QSslConfiguration::defaultConfiguration();
    QTemporaryDir folder_;
};

/// The client in front of a real server; only the clock of its time-outs is the test's.
class HttpClientIntegrationTest : public testing::Test {
protected:
    using Results = std::vector<HttpResult>;

    /// Where the results of this request go.
    Results& post(const QUrl& address, const QMap<QString, QString>& fields = {{u"name"_s, u"start"_s}})
    {
        Results& results = all.emplace_back();
        client->post({address, fields, {{u"X-Api-Key"_s, u"key"_s}}, 5s},
                     [&results](const HttpResult& result) { results.push_back(result); });
        EXPECT_TRUE(results.empty()) << "never from inside the call";
        return results;
    }

    /// The name of the error or else the body.
    QString end(const Results& results)
    {
        EXPECT_TRUE(runUntil([&] {
            runLoop.settle();
            return !results.empty();
        }));
        EXPECT_EQ(results.size(), 1U);
        const auto& [body, error] = results.front();
        EXPECT_TRUE(body.isEmpty() || !error);
        return error ? QString::fromLatin1(
                           QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(static_cast<int>(error->code)))
                     : QString::fromLatin1(body);
    }

    QString ask(const QUrl& address) { return end(post(address)); }

    VirtualRunLoop runLoop{Date{}};
    std::deque<Results> all;
    std::unique_ptr<HttpClient> client = std::make_unique<HttpClient>(runLoop);
    const QString eventAnswer = u"{\"result\": true}"_s;
};

TEST_F(HttpClientIntegrationTest, AFormArrivesAsItWasSentAndTheBodyIsHandedOverWhateverTheStatusCode)
{
    ReferenceServer server;
    const QMap<QString, QString> fields{{u"name"_s, u"50% + a&b=c\r\nü 🟢;/?"_s}, {u"empty"_s, {}}};
    EXPECT_EQ(end(post(server.url(), fields)), eventAnswer);
    ASSERT_EQ(server.requests().size(), 1);
    const auto request = server.requests().first().toObject();
    EXPECT_EQ(request[u"path"_s], u"/v1/Event/"_s);
    EXPECT_EQ(request[u"body"_s], u"empty=&name=50%25%20%2B%20a%26b%3Dc%0D%0A%C3%BC%20%F0%9F%9F%A2%3B%2F%3F"_s);
    EXPECT_EQ(request[u"headers"_s][u"x-api-key"_s], u"key"_s);
    EXPECT_EQ(request[u"headers"_s][u"content-type"_s], u"application/x-www-form-urlencoded"_s);
    for (const int status : {401, 404, 429, 503}) {
        server.command({{u"status"_s, status}});
        EXPECT_EQ(ask(server.url()), eventAnswer) << status;
    }
}

TEST_F(HttpClientIntegrationTest, AnAnswerThatBreaksOffOrIsTooLongIsAnErrorWithoutABody)
{
    ReferenceServer server;
    server.play(u"half"_s);
    for (const int status : {200, 404}) {
        server.command({{u"status"_s, status}});
        EXPECT_EQ(ask(server.url()), u"RemoteHostClosedError"_s) << status;
    }
    const qint64 bound = HttpClient::maximumAnswer;
    server.play(u"long"_s, QString::number(bound));
    EXPECT_EQ(ask(server.url()).size(), bound);
    server.play(u"long"_s, QString::number(bound + 1));
    EXPECT_EQ(ask(server.url()), u"UnknownContentError"_s);
    auto gone = std::make_unique<ReferenceServer>();
    const QUrl address = gone->url();
    gone.reset();
    EXPECT_EQ(ask(address), u"ConnectionRefusedError"_s);
}

TEST_F(HttpClientIntegrationTest, TheTimeOutHoldsForTheWholeRequestAndForEachByItself)
{
    ReferenceServer slow;
    ReferenceServer server;
    slow.play(u"drip"_s);
    const Results& pending = post(slow.url());
    ASSERT_TRUE(runUntil([&] { return slow.requests().size() == 1; }));
    runLoop.advance(4.9s);
    ASSERT_TRUE(runUntil([&] { return slow.command({})[u"dripped"_s].toInt() >= 3; }));
    EXPECT_EQ(ask(server.url()), eventAnswer);
    EXPECT_TRUE(pending.empty());
    runLoop.advance(0.2s);
    EXPECT_EQ(end(pending), u"TimeoutError"_s);
}

TEST_F(HttpClientIntegrationTest, ADestroyedClientLeavesItsServersAndReportsNothing)
{
    ReferenceServer slow;
    slow.play(u"drip"_s);
    const Results& dripping = post(slow.url());
    ASSERT_TRUE(runUntil([&] { return slow.requests().size() == 1; }));
    client.reset();
    runLoop.advance(10s);
    EXPECT_TRUE(runUntil([&] { return slow.command({})[u"left"_s].toInt() == 1; }));
    EXPECT_TRUE(dripping.empty());
}

TEST_F(HttpClientIntegrationTest, WhatIsNotEncryptedGoesToThisMachineOnly)
{
    for (const auto& address :
         {u"http://localhost.example.com/"_s, u"http://192.0.2.1/"_s, u"ftp://localhost/"_s, u"https:///"_s, u""_s})
        EXPECT_EQ(ask(QUrl(address)), u"ProtocolUnknownError"_s) << address.toStdString();
    ReferenceServer byName({}, u"localhost"_s);
    EXPECT_EQ(ask(byName.url()), eventAnswer);
}

TEST_F(HttpClientIntegrationTest, TheProxyOfTheEnvironmentIsAskedForTheHost)
{
    QTcpServer proxy;
    ASSERT_TRUE(proxy.listen(QHostAddress::LocalHost));
    const ScopedEnvironment variable("https_proxy", "127.0.0.1:" + QByteArray::number(proxy.serverPort()));
    const Results& results = post(QUrl(u"https://service.invalid/v1/Event/"_s));
    ASSERT_TRUE(runUntil([&] { return proxy.hasPendingConnections(); }));
    QTcpSocket* asked = proxy.nextPendingConnection();
    ASSERT_TRUE(runUntil([&] { return asked->canReadLine(); }));
    EXPECT_EQ(asked->readLine(), "CONNECT service.invalid:443 HTTP/1.1\r\n");
    asked->write("HTTP/1.1 403 Forbidden\r\n\r\n");
    asked->disconnectFromHost();
    EXPECT_TRUE(end(results).endsWith(u"Error"_s));
}

TEST_F(HttpClientIntegrationTest, OnlyATrustedServerOfThatNameIsToldAnythingAlsoWhereAnotherRedirects)
{
    const TestCertificate certificate;
    ReferenceServer server(certificate.option(), u"localhost"_s);
    EXPECT_EQ(ask(server.url()), u"SslHandshakeFailedError"_s) << "self-signed";
    certificate.trust();
    QUrl otherName = server.url();
    otherName.setHost(u"127.0.0.1"_s);
    EXPECT_EQ(ask(otherName), u"SslHandshakeFailedError"_s) << "of another host";
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_EQ(ask(server.url()), eventAnswer);

    ReferenceServer plain({}, u"localhost"_s);
    ReferenceServer other;
    const std::tuple<ReferenceServer&, QString, QString> rows[] = {
        {plain, server.url().toString(), eventAnswer},
        {server, plain.url().toString(), u"InsecureRedirectError"_s},
        {plain, other.url().toString(), u"InsecureRedirectError"_s},
    };
    for (const auto& [asked, target, answer] : rows) {
        asked.play(u"redirect"_s, target);
        EXPECT_EQ(ask(asked.url(u"/moved"_s)), answer) << target.toStdString();
    }
    EXPECT_EQ(server.requests().at(1)[u"form"_s][u"name"_s], u"start"_s);
    EXPECT_EQ(plain.requests().size(), 2);
    EXPECT_TRUE(other.requests().isEmpty());
}

} // namespace
} // namespace quillon
