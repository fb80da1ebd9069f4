#include "HttpClient.h"

#include "EnvironmentProxy.h"
#include "HttpExchange.h"
#include "RunLoop.h"

#include <QPointer>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

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
