#pragma once

#include "Date.h"

#include <QByteArray>
#include <QMap>
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

} // namespace quillon
