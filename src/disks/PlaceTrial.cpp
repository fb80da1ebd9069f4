#include "PlaceTrial.h"

#include "LocalizedString.h"
#include "PropertyList.h"
#include "ShownText.h"

#include <QMap>
#include <QVariantMap>

namespace quillon {

using namespace Qt::StringLiterals;

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
