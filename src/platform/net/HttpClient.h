#pragma once

#include "FormPoster.h"

#include <QObject>

namespace quillon {

class RunLoop;

/// Posts forms to HTTPS servers with certificates that the system trusts; plain HTTP goes to this machine only.
///
/// Redirects are followed within one host, never to plain HTTP. An answer longer than maximumAnswer is an error. Codes
/// of errors are those of QNetworkReply::NetworkError. Any number of requests may be under way. A proxy is the one
/// that the environment names, see EnvironmentProxy.h; a desktop's own setting is not asked, since Qt waits for the
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
