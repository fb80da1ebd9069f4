#include "HttpExchange.h"

#include "HttpClient.h"
#include "RunLoop.h"

#include <QNetworkRequest>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRedirects = 5;

QNetworkRequest networkRequest(const FormRequest& form)
{
    QNetworkRequest request(form.address);
    for (auto header = form.headers.begin(); header != form.headers.end(); ++header)
        request.setRawHeader(header.key().toUtf8(), header.value().toUtf8());
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    // A compressed answer would be unpacked on the way, whatever its size.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
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

/// Qt reports a status code of 400 or more as an error; the answer is whole all the same.
bool isWholeAnswer(const QNetworkReply& reply)
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

} // namespace

HttpExchange::HttpExchange(const FormRequest& form, RunLoop& runLoop, End end, QObject* parent)
    : QObject(parent)
    , reply_(*manager_.post(networkRequest(form), formBody(form.fields)))
    , address_(form.address)
    , end_(std::move(end))
{
    connect(&reply_, &QNetworkReply::readyRead, this, &HttpExchange::takeBytes);
    connect(&reply_, &QNetworkReply::redirected, this, &HttpExchange::judgeRedirect);
    connect(&reply_, &QNetworkReply::finished, this, &HttpExchange::takeEnd);
    // Repeating, though it runs once: such a timer does not wait longer when somebody sets the clock back.
    timeout_ = runLoop.scheduleRepeating(
        form.timeout, [this] { fail(QNetworkReply::TimeoutError, u"The server did not answer in time."_s); });
}

void HttpExchange::takeBytes()
{
    body_ += reply_.readAll();
    if (body_.size() > HttpClient::maximumAnswer)
        fail(QNetworkReply::UnknownContentError, u"The server's answer is too long."_s);
}

void HttpExchange::judgeRedirect(const QUrl& target)
{
    const bool isAsSafe = target.scheme() == "https"_L1 || target.scheme() == address_.scheme();
    if (target.host() != address_.host() || !isAsSafe) {
        fail(QNetworkReply::InsecureRedirectError, u"The server redirects to “%1”."_s.arg(target.toDisplayString()));
        return;
    }
    address_ = target;
    body_.clear();
    Q_EMIT reply_.redirectAllowed();
}

void HttpExchange::takeEnd()
{
    if (isWholeAnswer(reply_))
        finish({body_, std::nullopt});
    else
        fail(reply_.error(), reply_.errorString());
}

void HttpExchange::fail(QNetworkReply::NetworkError code, const QString& message)
{
    finish({{}, Error{HttpClient::errorDomain(), code, message}});
}

void HttpExchange::finish(const HttpResult& result)
{
    timeout_.invalidate();
    reply_.disconnect(this);
    reply_.abort(); // does nothing to a reply that has ended
    deleteLater();
    end_(result);
}

} // namespace quillon
