#pragma once

#include "Date.h"
#include "RunLoop.h"

#include <QByteArray>
#include <QMap>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QProcessEnvironment>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace quillon {

/// Why something failed, for code that tells failures apart.
struct Error {
    QString domain; ///< who numbered the code
    int code = 0;
    QString message; ///< one line in English
};

/// A form to be posted, encoded as application/x-www-form-urlencoded (WHATWG URL Standard, section 5), in UTF-8.
struct FormRequest {
    QUrl address;
    QMap<QString, QString> fields;
    QMap<QString, QString> headers; ///< sent beside those of HTTP itself and of the form's encoding
    Seconds timeout{0};             ///< for the whole request, from the call to the last byte of the answer
};

/// What came of it.
struct HttpResult {
    QByteArray body; ///< as the server sent it, whatever its status code; empty when there is an error
    std::optional<Error> error;
};

/// Posts forms over HTTP; the seam at which tests play a server.
class FormPoster {
public:
    using Completion = std::function<void(const HttpResult&)>;

    FormPoster() = default;
    FormPoster(const FormPoster&) = delete;
    FormPoster& operator=(const FormPoster&) = delete;
    virtual ~FormPoster() = default;

    /// Returns at once. A connection that breaks ahead of any answer is tried again, so the form may arrive more than
    /// once. The completion is called exactly once, in a later turn; never when this object is destroyed before.
    virtual void post(const FormRequest& request, Completion completion) = 0;
};

/// Whether a host's name or address stands for this machine.
bool isThisMachine(const QString& host);

/// The proxy that the environment names for an HTTPS address: https_proxy, else all_proxy, unless no_proxy lists the
/// host; the names in capital letters count where those in small ones are not set. `host:port` means an HTTP proxy,
/// socks5:// and socks5h:// one for SOCKS, which also resolves the host's name; other kinds are passed over. no_proxy
/// has names, which stand for the names below them too, addresses and subnets, each with a port or without, or "*".
/// @return of the kind DefaultProxy where the environment says nothing, of the kind NoProxy where it forbids one
QNetworkProxy environmentProxy(const QUrl& address, const QProcessEnvironment& environment);

/// One request under way: collects the answer within the bounds of size and time, and judges redirects. It deletes
/// itself when it has ended; it ends once, and never when its parent is destroyed before.
///
/// It has connections of its own: where requests share a QNetworkAccessManager, all of them can lose theirs at once,
/// and then only the time-out ends them.
class HttpExchange final : public QObject {
    Q_OBJECT

public:
    using End = std::function<void(const HttpResult&)>;

    HttpExchange(FormRequest form, RunLoop& runLoop, End end, QObject* parent);

private:
    void send(const QUrl& address);
    void takeBytes();
    void takeEnd();
    void follow(const QUrl& target);
    void fail(QNetworkReply::NetworkError code, const QString& message);
    void finish(const HttpResult& result);

    QNetworkAccessManager manager_;
    const FormRequest form_;
    QNetworkReply* reply_ = nullptr; // the manager's
    const End end_;
    Timer timeout_;
    QByteArray body_;
    int redirects_ = 0;
};

/// Posts forms to HTTPS servers with certificates that the system trusts; plain HTTP goes to this machine only.
///
/// Redirects are followed within one host, never to plain HTTP. An answer longer than maximumAnswer is an error. Codes
/// of errors are those of QNetworkReply::NetworkError. Any number of requests may be under way. A proxy is the one
/// that the environment names, see environmentProxy(); a desktop's own setting is not asked, since Qt waits for the
/// answer.
class HttpClient final : public QObject, public FormPoster {
    Q_OBJECT

public:
    static constexpr qint64 maximumAnswer = 1 << 20; ///< bytes
    static QString errorDomain();

    explicit HttpClient(RunLoop& runLoop);

    void post(const FormRequest& request, Completion completion) override;

private:
    RunLoop& runLoop_;
};

} // namespace quillon
