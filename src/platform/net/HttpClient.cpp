#include "HttpClient.h"

#include "RunLoop.h"

#include <QHostAddress>
#include <QNetworkRequest>
#include <QPointer>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int httpsPort = 443;
constexpr int httpPort = 80;
constexpr int socksPort = 1080;

QString variable(const QProcessEnvironment& environment, const QString& name)
{
    const QString value = environment.value(name).trimmed();
    return value.isEmpty() ? environment.value(name.toUpper()).trimmed() : value;
}

/// @param entry of no_proxy
bool covers(const QString& entry, const QUrl& address)
{
    static const QRegularExpression form(uR"(^(?:\*?\.)?(?:\[([^\]]+)\]|([^:]+)|(.*:.*:.*?))(?::(\d+))?$)"_s);
    const auto parts = form.match(entry);
    if (!parts.hasMatch())
        return false;
    if (!parts.captured(4).isEmpty() && parts.captured(4).toInt() != address.port(httpsPort))
        return false;
    const QString named = parts.captured(1) + parts.captured(2) + parts.captured(3);
    const QString host = address.host();
    if (const QHostAddress numeric(host); !numeric.isNull()) {
        const auto subnet = QHostAddress::parseSubnet(named);
        return numeric.isEqual(QHostAddress(named)) || (named.contains('/'_L1) && numeric.isInSubnet(subnet));
    }
    return host.compare(named, Qt::CaseInsensitive) == 0 || host.endsWith(u'.' + named, Qt::CaseInsensitive);
}

bool isExempt(const QUrl& address, const QString& exceptions)
{
    const QStringList entries = exceptions.split(u',', Qt::SkipEmptyParts);
    return std::ranges::any_of(
        entries, [&](const QString& entry) { return entry.trimmed() == "*"_L1 || covers(entry.trimmed(), address); });
}

QNetworkProxy parsed(const QString& value)
{
    const QUrl proxy(value.contains("://"_L1) ? value : u"http://"_s + value);
    const bool isSocks = proxy.scheme() == "socks5"_L1 || proxy.scheme() == "socks5h"_L1;
    if (proxy.host().isEmpty() || (!isSocks && proxy.scheme() != "http"_L1))
        return QNetworkProxy::DefaultProxy;
    return {isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, proxy.host(),
            static_cast<quint16>(proxy.port(isSocks ? socksPort : httpPort)), proxy.userName(QUrl::FullyDecoded),
            proxy.password(QUrl::FullyDecoded)};
}

} // namespace

bool isThisMachine(const QString& host)
{
    return host == "localhost"_L1 || QHostAddress(host).isLoopback();
}

QNetworkProxy environmentProxy(const QUrl& address, const QProcessEnvironment& environment)
{
    if (isThisMachine(address.host()) || isExempt(address, variable(environment, u"no_proxy"_s)))
        return QNetworkProxy::NoProxy;
    const QString forHttps = variable(environment, u"https_proxy"_s);
    return parsed(forHttps.isEmpty() ? variable(environment, u"all_proxy"_s) : forHttps);
}

namespace {

constexpr int mostRedirects = 5;

QNetworkRequest networkRequest(const FormRequest& form, const QUrl& address)
{
    QNetworkRequest request(address);
    for (auto header = form.headers.begin(); header != form.headers.end(); ++header)
        request.setRawHeader(header.key().toUtf8(), header.value().toUtf8());
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    // A compressed answer would be unpacked on the way, whatever its size.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    return request;
}

/// Everything is encoded but what needs no encoding anywhere; QUrlQuery would leave "+" as it is, which means a blank.
QByteArray formBody(const QMap<QString, QString>& fields)
{
    QByteArrayList pairs;
    for (auto field = fields.begin(); field != fields.end(); ++field)
        pairs.append(QUrl::toPercentEncoding(field.key()) + '=' + QUrl::toPercentEncoding(field.value()));
    return pairs.join('&');
}

/// Qt reports a status code of 400 or more as an error; it is an answer all the same.
bool isAnswer(const QNetworkReply& reply)
{
    const auto error = reply.error();
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (error == QNetworkReply::NoError)
        return true;
    if (status < 400)
        return false;
    return (error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError) ||
           (error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError) ||
           error == QNetworkReply::ProtocolInvalidOperationError;
}

/// Where the form is to be posted again. A server that has something to be fetched elsewhere (303, See Other) has
/// answered the form itself: RFC 9110, section 15.4.4.
QUrl redirectTarget(const QNetworkReply& reply)
{
    constexpr int seeOther = 303;
    if (reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == seeOther)
        return {};
    return reply.attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
}

} // namespace

HttpExchange::HttpExchange(FormRequest form, RunLoop& runLoop, End end, QObject* parent)
    : QObject(parent)
    , form_(std::move(form))
    , end_(std::move(end))
{
    timeout_ = runLoop.scheduleAfter(
        form_.timeout, [this] { fail(QNetworkReply::TimeoutError, u"The server did not answer in time."_s); });
    // Redirects stay with the host, and so with its proxy.
    manager_.setProxy(environmentProxy(form_.address, QProcessEnvironment::systemEnvironment()));
    send(form_.address);
}

void HttpExchange::send(const QUrl& address)
{
    body_.clear();
    reply_ = manager_.post(networkRequest(form_, address), formBody(form_.fields));
    reply_->setReadBufferSize(HttpClient::maximumAnswer + 1); // one turn never brings more
    connect(reply_, &QNetworkReply::readyRead, this, &HttpExchange::takeBytes);
    connect(reply_, &QNetworkReply::finished, this, &HttpExchange::takeEnd);
}

void HttpExchange::takeBytes()
{
    body_ += reply_->readAll();
    if (body_.size() > HttpClient::maximumAnswer)
        fail(QNetworkReply::UnknownContentError, u"The server's answer is too long."_s);
}

void HttpExchange::takeEnd()
{
    const QUrl target = redirectTarget(*reply_);
    const QVariant length = reply_->header(QNetworkRequest::ContentLengthHeader);
    if (!isAnswer(*reply_))
        fail(reply_->error(), reply_->errorString());
    else if (length.isValid() && body_.size() < length.toLongLong()) // Qt does not tell where the status is an error
        fail(QNetworkReply::RemoteHostClosedError, u"The server's answer breaks off."_s);
    else if (target.isEmpty())
        finish({body_, std::nullopt});
    else
        follow(reply_->url().resolved(target));
}

void HttpExchange::follow(const QUrl& target)
{
    if (target.host() != form_.address.host() || target.scheme() != "https"_L1) {
        fail(QNetworkReply::InsecureRedirectError, u"The server redirects to “%1”."_s.arg(target.toDisplayString()));
    } else if (++redirects_ > mostRedirects) {
        fail(QNetworkReply::TooManyRedirectsError, u"The server redirects without end."_s);
    } else {
        reply_->deleteLater();
        send(target);
    }
}

void HttpExchange::fail(QNetworkReply::NetworkError code, const QString& message)
{
    finish({{}, Error{HttpClient::errorDomain(), code, message}});
}

void HttpExchange::finish(const HttpResult& result)
{
    timeout_.invalidate();
    reply_->disconnect(this);
    reply_->abort(); // does nothing to a reply that has ended
    deleteLater();
    end_(result);
}

namespace {

bool isAllowed(const QUrl& address)
{
    const QString scheme = address.scheme();
    return address.isValid() && !address.host().isEmpty() &&
           (scheme == "https"_L1 || (scheme == "http"_L1 && isThisMachine(address.host())));
}

} // namespace

HttpClient::HttpClient(RunLoop& runLoop)
    : runLoop_(runLoop)
{
}

QString HttpClient::errorDomain()
{
    return u"HttpClientErrorDomain"_s;
}

void HttpClient::post(const FormRequest& request, Completion completion)
{
    // In a turn of its own, where the completion may do anything, even destroy this client.
    auto end = [this, completion = std::move(completion)](const HttpResult& result) {
        runLoop_.enqueue([client = QPointer(this), completion, result] {
            if (client)
                completion(result);
        });
    };
    if (!isAllowed(request.address)) {
        const QString refusal =
            u"Only HTTPS addresses can be asked, not “%1”."_s.arg(request.address.toDisplayString());
        end({{}, Error{errorDomain(), QNetworkReply::ProtocolUnknownError, refusal}});
        return;
    }
    new HttpExchange(request, runLoop_, std::move(end), this); // NOLINT: deletes itself when it has ended
}

} // namespace quillon
