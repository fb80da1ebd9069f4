#include "Cirrel.h"

#include "PropertyList.h"
#include "Text.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Seconds requestTimeout = 5s;
constexpr double serverMoveInterval = 14.0 * 86400;

Error cirrelError(Cirrel::ErrorCode code, const QString& message)
{
    return {Cirrel::errorDomain(), static_cast<int>(code), message};
}

Error missingJsonParameter()
{
    return cirrelError(Cirrel::ErrorCode::WrongType, u"Missing JSON parameter."_s);
}

QString cacheKey(const QString& parameter)
{
    return u"Cirrel_Config_%1"_s.arg(parameter);
}

QString cacheDateKey(const QString& parameter)
{
    return u"Cirrel_Config_%1_lastDate"_s.arg(parameter);
}

bool isTextOrNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

/// Members that are null are dropped: they count as missing, and settings cannot hold them.
QVariantMap members(const QJsonObject& object)
{
    QVariantMap result = object.toVariantMap();
    result.removeIf([](const auto& member) { return member.value().isNull(); });
    return result;
}

/// What the service answers: a JSON object whose member "result" counts.
struct Answer {
    QJsonValue result;
    std::optional<Error> error;
};

Answer readAnswer(const std::optional<QString>& response, const std::optional<Error>& transportError)
{
    if (transportError)
        return {{}, transportError};
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(response.value_or(QString()).toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        return {{}, Error{u"JsonErrorDomain"_s, error.error, error.errorString()}};
    return {document.object().value(u"result"_s), std::nullopt};
}

std::optional<Error> errorInConfigRequest(const QString& parameter, const QVariant& defaultValue)
{
    using Code = Cirrel::ErrorCode;
    if (auto error = Cirrel::getInitialisationError())
        return error;
    if (parameter.isEmpty())
        return cirrelError(Code::MissingParameter, u"Missing parameter 'parameter'."_s);
    if (!defaultValue.isValid())
        return cirrelError(Code::MissingDefault, u"Missing default value."_s);
    if (!isTextOrNumber(defaultValue))
        return cirrelError(Code::WrongType, u"Incorrect default value, should be NSString or NSNumber."_s);
    return std::nullopt;
}

} // namespace

Cirrel::Services* Cirrel::services_ = nullptr;

Cirrel::Services::Services(RunLoop& runLoop, UserDefaults& defaults, std::unique_ptr<FormPoster> poster)
    : runLoop_(runLoop)
    , defaults_(defaults)
    , poster_(std::move(poster))
{
    services_ = this;
}

Cirrel::Services::~Services()
{
    services_ = nullptr;
}

void Cirrel::initWithAppId(const QString& appId, const QString& apiKey, const QString& server)
{
    setAppId(appId);
    setApiKey(apiKey);
    setServer(server);
    getConfigForParameter(u"ServerUrl"_s, serverMoveInterval, server,
                          [](const QVariant& value, const std::optional<Error>& error) {
                              if (!error && value.typeId() == QMetaType::QString)
                                  setServer(value.toString());
                          });
}

QString Cirrel::getServer()
{
    return services_ ? services_->server_ : QString();
}

void Cirrel::setServer(const QString& server)
{
    if (services_)
        services_->server_ = server;
}

QString Cirrel::getAppId()
{
    return services_ ? services_->appId_ : QString();
}

void Cirrel::setAppId(const QString& appId)
{
    if (services_)
        services_->appId_ = appId;
}

QString Cirrel::getApiKey()
{
    return services_ ? services_->apiKey_ : QString();
}

void Cirrel::setApiKey(const QString& apiKey)
{
    if (services_)
        services_->apiKey_ = apiKey;
}

QString Cirrel::domain()
{
    return QUrl(getServer()).host();
}

QString Cirrel::errorDomain()
{
    return u"CirrelErrorDomain"_s;
}

void Cirrel::callFunctionInBackground(const QString& function, const QMap<QString, QString>& parameters,
                                      const FunctionBlock& block)
{
    auto error = getInitialisationError();
    if (!error && function.isEmpty())
        error = cirrelError(ErrorCode::MissingParameter, u"Missing parameter 'function'."_s);
    if (error) {
        if (block)
            block(std::nullopt, error);
        return;
    }
    const FormRequest request{QUrl(u"%1/%2/"_s.arg(getServer(), function), QUrl::StrictMode),
                              parameters,
                              {{u"X-Application-Id"_s, getAppId()}, {u"X-Api-Key"_s, getApiKey()}},
                              requestTimeout};
    services_->poster_->post(request, [block](const HttpResult& result) {
        if (block)
            block(result.error ? std::nullopt : strictUtf8(result.body), result.error);
    });
}

void Cirrel::getConfigForParameter(const QString& parameter, double serverInterval, const QVariant& defaultValue,
                                   const ConfigBlock& block)
{
    const ConfigBlock complete = block ? block : [](const QVariant&, const std::optional<Error>&) {};
    if (const auto error = errorInConfigRequest(parameter, defaultValue)) {
        complete({}, error);
        return;
    }
    const auto fallback = [parameter, defaultValue] {
        const QVariant cached = getConfigFromCacheFor(parameter);
        return cached.isValid() ? cached : defaultValue;
    };
    if (isCacheFresh(parameter, serverInterval)) {
        complete(fallback(), std::nullopt);
        return;
    }
    const auto takeResponse = [=](const std::optional<QString>& response, const std::optional<Error>& transportError) {
        const Answer answer = readAnswer(response, transportError);
        const QVariantMap result = members(answer.result.toObject());
        if (answer.error) {
            complete(fallback(), answer.error);
        } else if (!result.contains(u"type"_s) || !result.contains(u"value"_s)) {
            complete(fallback(), missingJsonParameter());
        } else {
            remember(parameter, result);
            complete(getValueFromConfigJson(result), std::nullopt);
        }
    };
    callFunctionInBackground(u"v1/Config"_s, {{u"parameter"_s, parameter}}, takeResponse);
}

void Cirrel::trackEventInBackground(const QString& name, const EventBlock& block)
{
    const EventBlock complete = block ? block : [](bool, const std::optional<Error>&) {};
    auto error = getInitialisationError();
    if (!error && name.isEmpty())
        error = cirrelError(ErrorCode::MissingParameter, u"Missing parameter 'name'."_s);
    if (error) {
        complete(false, error);
        return;
    }
    const auto takeResponse = [=](const std::optional<QString>& response, const std::optional<Error>& transportError) {
        const Answer answer = readAnswer(response, transportError);
        const QVariant result = answer.result.toVariant();
        if (answer.error)
            complete(false, answer.error);
        else if (isTextOrNumber(result))
            complete(propertylist::toBoolean(result), std::nullopt);
        else
            complete(false, missingJsonParameter());
    };
    callFunctionInBackground(u"v1/Event"_s, {{u"name"_s, name}}, takeResponse);
}

QVariant Cirrel::getConfigFromCacheFor(const QString& parameter)
{
    return services_ ? getValueFromConfigJson(services_->defaults_.object(cacheKey(parameter)).toMap()) : QVariant();
}

QVariant Cirrel::getValueFromConfigJson(const QVariantMap& result)
{
    const QString type = result.value(u"type"_s).toString();
    QVariant value = result.value(u"value"_s);
    if (type == "String"_L1)
        return value;
    if (!isTextOrNumber(value))
        return {};
    if (type == "Boolean"_L1)
        return propertylist::toBoolean(value);
    if (type == "Integer"_L1)
        return propertylist::toInteger(value);
    return {};
}

std::optional<Error> Cirrel::getInitialisationError()
{
    if (!getServer().isEmpty() && !getAppId().isEmpty() && !getApiKey().isEmpty())
        return std::nullopt;
    return cirrelError(ErrorCode::NotInitialised,
                       u"Cirrel is not initialised. Call '+initWithAppId:apiKey:andServer:' to resolve this issue."_s);
}

bool Cirrel::isCacheFresh(const QString& parameter, double serverInterval)
{
    const auto lastDate = services_->defaults_.date(cacheDateKey(parameter));
    return serverInterval > 0 && lastDate && secondsBetween(*lastDate, services_->runLoop_.now()) < serverInterval;
}

void Cirrel::remember(const QString& parameter, const QVariantMap& result)
{
    // Settings refuse what they cannot hold, a text with control characters for one: then the older answer stays, with
    // its date.
    services_->defaults_.setObject(cacheKey(parameter), result);
    if (services_->defaults_.object(cacheKey(parameter)).toMap() == result)
        services_->defaults_.setDate(cacheDateKey(parameter), services_->runLoop_.now());
}

} // namespace quillon
