#include "NetworkPlace.h"

#include "LocalizedString.h"
#include "PropertyList.h"
#include "Text.h"

#include <QMap>
#include <QUrl>
#include <QVariantMap>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Kind = NetworkPlace::Kind;
using Field = NetworkPlace::Field;

/// Of a URL as tmutil has it: what stands before the URL of the server.
QLatin1StringView prefixOf(Kind kind)
{
    switch (kind) {
    case Kind::Sftp:
        break;
    case Kind::Rest:
        return "rest:"_L1;
    case Kind::S3:
        return "s3:"_L1;
    }
    return ""_L1;
}

QString schemeOf(const NetworkPlace& place)
{
    if (place.kind == Kind::Sftp)
        return u"sftp"_s;
    return place.secure ? u"https"_s : u"http"_s;
}

/// What tmutil calls that part of the credentials; empty for what is part of the URL.
QByteArray credentialName(Field field)
{
    switch (field) {
    case Field::KeyFile:
        return "key-file";
    case Field::Password:
        return "password";
    case Field::AccessKey:
        return "access-key";
    case Field::SecretKey:
        return "secret-key";
    case Field::Region:
        return "region";
    case Field::Certificate:
        return "ca-file";
    case Field::Server:
    case Field::Port:
    case Field::Path:
    case Field::User:
        break;
    }
    return {};
}

bool isHost(const QString& server)
{
    QUrl url;
    url.setHost(server);
    return !url.host().isEmpty() && !server.startsWith(u'-');
}

bool isPort(const QString& text)
{
    constexpr uint most = 65535;
    bool isNumber = false;
    const uint port = text.toUInt(&isNumber);
    return isNumber && port > 0 && port <= most;
}

/// Whether a path names more than where all paths begin.
bool isFolder(const QString& path)
{
    return std::ranges::any_of(path, [](QChar c) { return c != u'/' && c != u'~'; });
}

bool isFolderOnServer(const QString& path)
{
    return path.startsWith(u'/') || path.startsWith("~/"_L1);
}

/// Of what is filled in.
const char* nonsenseIn(const NetworkPlace& place, Field field)
{
    const QString text = place.text(field);
    switch (field) {
    case Field::Server:
        return isHost(text) ? nullptr : "disksPlaceBadServer";
    case Field::Port:
        return isPort(text) ? nullptr : "disksPlaceBadPort";
    case Field::Path:
        return place.kind != Kind::Sftp || isFolderOnServer(text) ? nullptr : "disksPlaceBadFolder";
    case Field::KeyFile:
    case Field::Certificate:
        return text.startsWith(u'/') ? nullptr : "disksPlaceBadFile";
    default:
        return nullptr;
    }
}

} // namespace

std::optional<NetworkPlace> NetworkPlace::fromUrl(const QString& text)
{
    NetworkPlace place;
    for (const Kind kind : {Kind::Rest, Kind::S3}) {
        if (text.startsWith(prefixOf(kind), Qt::CaseInsensitive))
            place.kind = kind;
    }
    const QUrl url(text.mid(prefixOf(place.kind).size()));
    place.secure = url.scheme() != "http"_L1;
    if (!url.isValid() || url.host().isEmpty() || url.scheme() != schemeOf(place))
        return std::nullopt;
    QString path = url.path(QUrl::FullyDecoded);
    if (path.startsWith("/~/"_L1) || place.kind == Kind::S3)
        path.remove(0, 1);
    place.texts = {{Field::Server, url.host()}, {Field::Path, path}};
    if (url.port() > 0)
        place.texts.insert(Field::Port, QString::number(url.port()));
    if (!url.userName().isEmpty())
        place.texts.insert(Field::User, url.userName(QUrl::FullyDecoded));
    return place;
}

QString NetworkPlace::text(Field field) const
{
    const QString typed = texts.value(field);
    return field == Field::Password ? typed : typed.trimmed();
}

QList<NetworkPlace::Field> NetworkPlace::fields() const
{
    using enum Field;
    QList<Field> all;
    switch (kind) {
    case Kind::Sftp:
        return {Server, Port, Path, User, KeyFile};
    case Kind::Rest:
        all = {Server, Port, Path, User, Password};
        break;
    case Kind::S3:
        all = {Server, Port, Path, AccessKey, SecretKey, Region};
        break;
    }
    if (secure)
        all.append(Certificate);
    return all;
}

QList<NetworkPlace::Field> NetworkPlace::accessFields() const
{
    QList<Field> access = fields();
    access.removeIf([this](Field field) {
        return credentialName(field).isEmpty() || (field == Field::Password && text(Field::User).isEmpty());
    });
    return access;
}

bool NetworkPlace::isOptional(Field field) const
{
    switch (field) {
    case Field::Server:
    case Field::AccessKey:
    case Field::SecretKey:
        return false;
    case Field::Path:
        return kind == Kind::Rest;
    default:
        return true;
    }
}

QString NetworkPlace::lack() const
{
    QStringList needed;
    const QList<Field> all = fields();
    for (const Field field : all) {
        const bool isGiven = !text(field).isEmpty() && (field != Field::Path || isFolder(text(field)));
        if (!isGiven && !isOptional(field))
            needed.append(fieldTitle(field, kind));
        else if (const char* nonsense = isGiven ? nonsenseIn(*this, field) : nullptr)
            return localizedString(nonsense);
    }
    if (!needed.isEmpty())
        return localizedString("disksPlaceNeeded").arg(needed.join(u", "_s));
    if (kind == Kind::Rest && text(Field::User).isEmpty() != text(Field::Password).isEmpty())
        return localizedString("disksPlaceUserAndPassword");
    return {};
}

QString NetworkPlace::url() const
{
    QUrl url;
    url.setScheme(schemeOf(*this));
    url.setHost(text(Field::Server));
    if (const QString port = text(Field::Port); !port.isEmpty())
        url.setPort(port.toInt());
    if (kind != Kind::S3)
        url.setUserName(text(Field::User), QUrl::DecodedMode);
    const QString path = text(Field::Path);
    url.setPath(path.isEmpty() || path.startsWith(u'/') ? path : u'/' + path, QUrl::DecodedMode);
    return prefixOf(kind) + url.toString(QUrl::FullyEncoded);
}

QByteArray NetworkPlace::credentials() const
{
    QByteArray lines;
    const QList<Field> access = accessFields();
    for (const Field field : access) {
        if (const QString value = text(field); !value.isEmpty())
            lines += credentialName(field) + '=' + value.toUtf8() + '\n';
    }
    return lines;
}

QString fieldTitle(Field field, Kind kind)
{
    switch (field) {
    case Field::Server:
        return localizedString("disksPlaceServer");
    case Field::Port:
        return localizedString("disksPlacePort");
    case Field::Path:
        return localizedString(
            std::array{"disksPlaceFolder", "disksPlacePath", "disksPlaceBucket"}.at(static_cast<std::size_t>(kind)));
    case Field::User:
        return localizedString("disksPlaceUser");
    case Field::KeyFile:
        return localizedString("disksPlaceKeyFile");
    case Field::Password:
        return localizedString("disksPlacePassword");
    case Field::AccessKey:
        return localizedString("disksPlaceAccessKey");
    case Field::SecretKey:
        return localizedString("disksPlaceSecretKey");
    case Field::Region:
        return localizedString("disksPlaceRegion");
    case Field::Certificate:
        break;
    }
    return localizedString("disksPlaceCertificate");
}

namespace {

using Outcome = PlaceTrial::Outcome;

/// By what tmutil calls the cause of a failure.
Outcome outcomeOf(const QString& cause)
{
    static const QMap<QString, Outcome> outcomes{{u"UnknownHostKey"_s, Outcome::UnknownHostKey},
                                                 {u"ChangedHostKey"_s, Outcome::ChangedHostKey},
                                                 {u"BadCertificate"_s, Outcome::BadCertificate},
                                                 {u"AccessDenied"_s, Outcome::AccessDenied},
                                                 {u"NoPermission"_s, Outcome::NoPermission},
                                                 {u"DestinationMissing"_s, Outcome::NoAnswer},
                                                 {u"NoSpace"_s, Outcome::NoSpace},
                                                 {u"WrongKey"_s, Outcome::WrongKey}};
    return outcomes.value(cause, Outcome::Other);
}

const char* accessDenied(NetworkPlace::Kind kind)
{
    return kind == NetworkPlace::Kind::Sftp ? "disksPlaceAccessDeniedKey" : "disksPlaceAccessDenied";
}

} // namespace

PlaceTrial PlaceTrial::read(const TmutilAnswer& answer)
{
    const QVariantMap told = propertylist::parse(answer.output).value_or(QVariant()).toMap();
    const QString contents = told.value(u"Contents"_s).toString();
    if (answer.success && (contents == "Empty"_L1 || contents == "Backups"_L1))
        return {.outcome = contents == "Empty"_L1 ? Outcome::Empty : Outcome::Backups};
    if (answer.success)
        return {.description = localizedString("disksToolUnreadable")};
    const QString cause = told.value(u"Cause"_s).toString();
    const QString description = shownLongText(told.value(u"Description"_s).toString());
    return {.outcome = outcomeOf(cause),
            .description = description.isEmpty() ? answer.complaint : toolReason(cause, description),
            .fingerprint = shownText(told.value(u"HostKey"_s).toMap().value(u"Fingerprint"_s).toString())};
}

PlaceAdvice PlaceAdvice::on(const PlaceTrial& trial, const NetworkPlace& place, const QString& trusted)
{
    const QString server = shownText(place.text(NetworkPlace::Field::Server));
    const auto say = [](const char* key) { return localizedString(key); };
    const auto sayOf = [&](const char* key) { return localizedString(key).arg(server); };
    // Of a key that was trusted already tmutil's words tell what is the matter.
    const bool isNewKey = !trial.fingerprint.isEmpty() && trial.fingerprint != trusted;
    switch (trial.outcome) {
    case Outcome::Empty:
        return {Step::Keep, say("disksPlaceEmpty")};
    case Outcome::Backups:
        return {Step::Keep, say("disksPlaceBackups")};
    case Outcome::WrongKey:
        return {Step::TakeUp, say("disksPlaceWrongKey")};
    case Outcome::UnknownHostKey:
        if (isNewKey)
            return {Step::Trust, sayOf("disksPlaceUnknownKey")};
        break;
    case Outcome::ChangedHostKey:
        if (isNewKey)
            return {Step::Trust, sayOf("disksPlaceChangedKey"), true};
        break;
    case Outcome::BadCertificate:
        return {Step::Try, sayOf("disksPlaceBadCertificate"), true};
    case Outcome::AccessDenied:
        return {Step::Try, sayOf(accessDenied(place.kind))};
    case Outcome::NoPermission:
        return {Step::Try, say("disksPlaceNoPermission")};
    case Outcome::NoAnswer:
        return {Step::Try, sayOf("disksPlaceNoAnswer")};
    case Outcome::NoSpace:
        return {Step::Try, say("disksPlaceNoSpace")};
    case Outcome::Other:
        break;
    }
    return {Step::Try, localizedString("disksPlaceFailed").arg(trial.description)};
}

} // namespace quillon
