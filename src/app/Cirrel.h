#pragma once

#include "HttpClient.h"
#include "RunLoop.h"
#include "UserDefaults.h"

#include <QMap>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// Client of the maker's configuration service: reads named parameters, with a cache in the user defaults, and records
/// named events.
///
/// One for the whole process; there are no objects of this class. Completions may be empty; they are called once at
/// most. Every failure reaches them as an error: of errorDomain(), of the HTTP client or of the JSON reader.
class Cirrel {
public:
    /// What the client stands on. Main makes one; while there is none the client is not initialised. Requests that are
    /// under way when it is destroyed are dropped without a report.
    class Services {
    public:
        Services(RunLoop& runLoop, UserDefaults& defaults, std::unique_ptr<FormPoster> poster);
        Services(const Services&) = delete;
        Services& operator=(const Services&) = delete;
        ~Services();

    private:
        friend class Cirrel;

        RunLoop& runLoop_;
        UserDefaults& defaults_;
        QString server_;
        QString appId_;
        QString apiKey_;
        std::unique_ptr<FormPoster> poster_; // last, so that its requests end first
    };

    /// Codes of errorDomain().
    enum class ErrorCode { NotInitialised = -900, MissingParameter = -100, MissingDefault = -101, WrongType = -102 };

    /// The answer's text; nothing when it is not UTF-8 or there is an error.
    using FunctionBlock = std::function<void(const std::optional<QString>& response, const std::optional<Error>&)>;
    /// A text, a number, a boolean or, for a parameter that the service calls a text, whatever JSON value it sent;
    /// invalid when there is none.
    using ConfigBlock = std::function<void(const QVariant& value, const std::optional<Error>&)>;
    using EventBlock = std::function<void(bool result, const std::optional<Error>&)>;

    Cirrel() = delete;

    /// Sets the values and asks the service whether it has moved, at most every 14 days; `server` is its base address,
    /// without a slash at its end.
    static void initWithAppId(const QString& appId, const QString& apiKey, const QString& server);

    static QString getServer();
    static void setServer(const QString& server);
    static QString getAppId();
    static void setAppId(const QString& appId);
    static QString getApiKey();
    static void setApiKey(const QString& apiKey);
    /// Host of the server's address; empty when there is none.
    static QString domain();
    static QString errorDomain();

    /// Posts the parameters to a function of the service, such as "v1/Config".
    static void callFunctionInBackground(const QString& function, const QMap<QString, QString>& parameters,
                                         const FunctionBlock& block);

    /// The parameter's value, from the cache while that is younger than `serverInterval` seconds (at once), else from
    /// the service; 0 or less always asks it. Where neither has one, `defaultValue`, a text or a number; where the
    /// service answers with a kind that this client does not know, an invalid value. When the service fails, the cached
    /// or the default value comes together with the error, and the cache stays.
    static void getConfigForParameter(const QString& parameter, double serverInterval, const QVariant& defaultValue,
                                      const ConfigBlock& block);

    static void trackEventInBackground(const QString& name, const EventBlock& block);

    /// The cached value of a parameter, however old.
    static QVariant getConfigFromCacheFor(const QString& parameter);
    /// The value in the service's "result"; invalid when it is of a type unknown here or does not fit its type.
    static QVariant getValueFromConfigJson(const QVariantMap& result);
    /// Why nothing can be asked; nothing when it can.
    static std::optional<Error> getInitialisationError();

private:
    static bool isCacheFresh(const QString& parameter, double serverInterval);
    static void remember(const QString& parameter, const QVariantMap& result);

    static Services* services_;
};

} // namespace quillon
