#pragma once

#include "FormPoster.h"
#include "Timer.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QUrl>

namespace quillon {

class RunLoop;

/// One request under way: collects the answer within the bounds of size and time, and judges redirects. It deletes
/// itself when it has ended; it ends once, and never when its parent is destroyed before.
///
/// It has connections of its own: those of one QNetworkAccessManager that requests share can get lost together, and
/// then a request that comes to nothing is seen by its time-out only.
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

} // namespace quillon
