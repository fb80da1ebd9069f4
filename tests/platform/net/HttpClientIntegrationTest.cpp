#include "EventLoop.h"
#include "HttpClient.h"
#include "ReferenceServer.h"
#include "ScopedEnvironment.h"
#include "VirtualRunLoop.h"

#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>

#include <deque>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The client in front of a real server; only the clock of its time-outs is the test's.
class HttpClientIntegrationTest : public testing::Test {
protected:
    using Results = std::vector<HttpResult>;

    /// Where the results of this request go.
    Results& post(const QUrl& address, const QMap<QString, QString>& fields = {{u"name"_s, u"start"_s}},
                  const QMap<QString, QString>& headers = {})
    {
        Results& results = all.emplace_back();
        client->post({address, fields, headers, 5s},
                     [&results](const HttpResult& result) { results.push_back(result); });
        return results;
    }

    HttpResult end(const Results& results)
    {
        runUntil([&] {
            runLoop.settle();
            return !results.empty();
        });
        EXPECT_EQ(results.size(), 1U);
        return results.empty() ? HttpResult() : results.front();
    }

    HttpResult ask(const QUrl& address) { return end(post(address)); }

    static int code(const HttpResult& result)
    {
        EXPECT_TRUE(result.body.isEmpty() || !result.error);
        return result.error ? result.error->code : QNetworkReply::NoError;
    }

    void awaitRequests(ReferenceServer& server, qsizetype count)
    {
        ASSERT_TRUE(runUntil([&] { return server.requests().size() >= count; }));
    }

    VirtualRunLoop runLoop{Date{}};
    std::deque<Results> all;
    std::unique_ptr<HttpClient> client = std::make_unique<HttpClient>(runLoop);
};

const QByteArray eventAnswer = R"({"result": true})";

} // namespace

TEST_F(HttpClientIntegrationTest, AFormArrivesAsItWasSent)
{
    ReferenceServer server;
    const QMap<QString, QString> fields{{u"name"_s, u"50% + a&b=c\r\nü 🟢;/?"_s}, {u"empty"_s, {}}};
    const auto result = end(post(server.url(u"/v1/Event/"_s), fields, {{u"X-Api-Key"_s, u"key"_s}}));
    EXPECT_EQ(result.body, eventAnswer);
    ASSERT_EQ(server.requests().size(), 1);
    const auto request = server.requests().first().toObject();
    EXPECT_EQ(request.value(u"path"_s), u"/v1/Event/"_s);
    EXPECT_EQ(request.value(u"body"_s), u"empty=&name=50%25%20%2B%20a%26b%3Dc%0D%0A%C3%BC%20%F0%9F%9F%A2%3B%2F%3F"_s);
    EXPECT_EQ(request.value(u"form"_s).toObject().value(u"name"_s), fields.value(u"name"_s));
    EXPECT_EQ(request.value(u"headers"_s).toObject().value(u"x-api-key"_s), u"key"_s);
    EXPECT_EQ(request.value(u"headers"_s).toObject().value(u"content-type"_s), u"application/x-www-form-urlencoded"_s);
}

TEST_F(HttpClientIntegrationTest, TheBodyIsHandedOverRawWhateverTheStatusCode)
{
    ReferenceServer server;
    for (const int status : {201, 400, 401, 403, 404, 418, 429, 500, 503, 599}) {
        server.setStatus(status);
        const auto result = ask(server.url(u"/v1/Event/"_s));
        EXPECT_FALSE(result.error) << status << result.error->message.toStdString();
        EXPECT_EQ(result.body, eventAnswer) << status;
    }
    server.setStatus(200);
    server.play(u"notUtf8"_s);
    EXPECT_TRUE(ask(server.url(u"/v1/Event/"_s)).body.contains('\xff'));
    server.play(u"long"_s, u"0"_s);
    EXPECT_EQ(code(ask(server.url(u"/v1/Event/"_s))), QNetworkReply::NoError);
    server.play(u"compressed"_s);
    EXPECT_TRUE(ask(server.url(u"/v1/Event/"_s)).body.startsWith("\x1f\x8b")) << "RFC 1952";
}

TEST_F(HttpClientIntegrationTest, AnAnswerThatBreaksOffIsAnErrorWithoutABody)
{
    ReferenceServer server;
    for (const int status : {200, 404, 500}) {
        server.setStatus(status);
        for (const auto& fault : {u"reset"_s, u"half"_s}) {
            server.play(fault);
            EXPECT_EQ(code(ask(server.url(u"/v1/Event/"_s))), QNetworkReply::RemoteHostClosedError)
                << fault.toStdString() << status;
        }
    }
    auto gone = std::make_unique<ReferenceServer>();
    const QUrl address = gone->url(u"/"_s);
    gone.reset();
    EXPECT_EQ(code(ask(address)), QNetworkReply::ConnectionRefusedError);
}

TEST_F(HttpClientIntegrationTest, AnAnswerIsBounded)
{
    ReferenceServer server;
    const qint64 bound = HttpClient::maximumAnswer;
    server.play(u"long"_s, QString::number(bound));
    EXPECT_EQ(ask(server.url(u"/"_s)).body.size(), bound);
    for (const qint64 length : {bound + 1, 64 * bound}) {
        server.play(u"long"_s, QString::number(length));
        EXPECT_EQ(code(ask(server.url(u"/"_s))), QNetworkReply::UnknownContentError);
    }
}

TEST_F(HttpClientIntegrationTest, TheTimeOutHoldsForTheWholeRequestAndForEachByItself)
{
    ReferenceServer slow;
    ReferenceServer server;
    for (const auto& fault : {u"hang"_s, u"drip"_s}) {
        slow.play(fault);
        const auto asked = slow.requests().size();
        const Results& pending = post(slow.url(u"/v1/Event/"_s));
        awaitRequests(slow, asked + 1);
        runLoop.advance(4.9s);
        runLoop.stepWallClock(-1h);
        if (fault == "drip"_L1) {
            ASSERT_TRUE(runUntil([&] { return slow.dripped() >= 3; }));
        }
        EXPECT_EQ(ask(server.url(u"/v1/Event/"_s)).body, eventAnswer);
        EXPECT_TRUE(pending.empty());
        runLoop.advance(0.2s);
        EXPECT_EQ(code(end(pending)), QNetworkReply::TimeoutError) << fault.toStdString();
    }
}

TEST_F(HttpClientIntegrationTest, ADestroyedClientLeavesItsServersAndReportsNothing)
{
    ReferenceServer slow;
    slow.play(u"drip"_s);
    const Results& dripping = post(slow.url(u"/"_s));
    const Results& refused = post(QUrl(u"ftp://127.0.0.1/"_s));
    awaitRequests(slow, 1);
    client.reset();
    runLoop.advance(10s);
    EXPECT_TRUE(dripping.empty());
    EXPECT_TRUE(refused.empty());
    EXPECT_TRUE(runUntil([&] { return slow.left() == 1; }));

    client = std::make_unique<HttpClient>(runLoop);
    bool ended = false;
    client->post({slow.url(u"/"_s), {}, {}, 5s}, [&](const HttpResult&) {
        client.reset(); // from inside a completion
        ended = true;
    });
    const Results& other = post(slow.url(u"/"_s));
    runLoop.advance(6s);
    EXPECT_TRUE(ended);
    EXPECT_TRUE(other.empty());
}

TEST_F(HttpClientIntegrationTest, WhatIsNotEncryptedGoesToThisMachineOnly)
{
    for (const auto& address :
         {u"http://example.com/"_s, u"http://localhost.example.com/"_s, u"http://192.0.2.1/"_s, u"ftp://localhost/"_s,
          u"file:///etc/passwd"_s, u"//localhost/"_s, u"https:///"_s, u"https://[bad/"_s, u""_s}) {
        const Results& results = post(QUrl(address));
        EXPECT_TRUE(results.empty()) << "never from inside the call";
        runLoop.settle();
        ASSERT_EQ(results.size(), 1U) << address.toStdString();
        EXPECT_EQ(code(results.front()), QNetworkReply::ProtocolUnknownError);
    }
    ReferenceServer byName({}, u"localhost"_s);
    EXPECT_EQ(ask(byName.url(u"/v1/Event/"_s)).body, eventAnswer);
}

TEST_F(HttpClientIntegrationTest, OnlyAServerWithATrustedCertificateOfItsNameIsToldAnything)
{
    const TestCertificate certificate;
    ReferenceServer server(certificate.option(), u"localhost"_s);
    EXPECT_EQ(code(ask(server.url(u"/v1/Event/"_s))), QNetworkReply::SslHandshakeFailedError) << "self-signed";
    certificate.trust();
    QUrl otherName = server.url(u"/v1/Event/"_s);
    otherName.setHost(u"127.0.0.1"_s);
    EXPECT_EQ(code(ask(otherName)), QNetworkReply::SslHandshakeFailedError) << "of another host";
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_EQ(ask(server.url(u"/v1/Event/"_s)).body, eventAnswer);
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
    EXPECT_NE(code(end(results)), QNetworkReply::NoError);
}

TEST_F(HttpClientIntegrationTest, RedirectsStayWithTheHostAndItsEncryption)
{
    const TestCertificate certificate;
    certificate.trust();
    ReferenceServer server(certificate.option(), u"localhost"_s);
    ReferenceServer plain({}, u"localhost"_s);
    ReferenceServer other;

    server.play(u"redirect"_s, u"/v1/Event/"_s);
    EXPECT_EQ(ask(server.url(u"/moved"_s)).body, eventAnswer);
    EXPECT_EQ(server.requests().last().toObject().value(u"form"_s).toObject().value(u"name"_s), u"start"_s);
    plain.play(u"redirect"_s, server.address() + u"/v1/Event/"_s);
    EXPECT_EQ(ask(plain.url(u"/moved"_s)).body, eventAnswer);

    server.play(u"circle"_s);
    EXPECT_EQ(code(ask(server.url(u"/moved"_s))), QNetworkReply::TooManyRedirectsError);

    plain.play(u"redirect"_s, u"/v1/Event/"_s);
    EXPECT_EQ(code(ask(plain.url(u"/moved"_s))), QNetworkReply::InsecureRedirectError);
    const auto asked = plain.requests().size();
    server.play(u"redirect"_s, plain.address() + u"/v1/Event/"_s);
    EXPECT_EQ(code(ask(server.url(u"/moved"_s))), QNetworkReply::InsecureRedirectError);
    plain.play(u"redirect"_s, other.address() + u"/v1/Event/"_s);
    EXPECT_EQ(code(ask(plain.url(u"/moved"_s))), QNetworkReply::InsecureRedirectError);
    EXPECT_EQ(plain.requests().size(), asked + 1);
    EXPECT_TRUE(other.requests().isEmpty());
}

} // namespace quillon
