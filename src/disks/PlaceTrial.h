#pragma once

#include "NetworkPlace.h"
#include "Setup.h"

#include <QString>

namespace quillon {

/// What asking a network place, or setting it, has come to.
struct PlaceTrial {
    enum class Outcome {
        Empty,   ///< can be used
        Backups, ///< can be used, and has backups that this computer can open
        UnknownHostKey,
        ChangedHostKey,
        BadCertificate,
        AccessDenied,
        NoPermission,
        NoAnswer,
        NoSpace,
        WrongKey, ///< has backups that this computer cannot open
        Other,    ///< of which only the description tells
    };

    Outcome outcome = Outcome::Other;
    QString description{}; ///< what went wrong, fit to be shown
    QString fingerprint{}; ///< of the host key that is unknown or has changed

    /// Reads the answer to a trial, or to a call that sets the place.
    static PlaceTrial read(const TmutilAnswer& answer);
};

/// What the user is told of a trial, and what can be done next.
struct PlaceAdvice {
    enum class Step {
        Try,
        Trust,  ///< try again, with the server's key taken for its own
        TakeUp, ///< with the recovery key
        Keep,
    };

    Step step = Step::Try;
    QString text{};
    bool isAlarming = false;

    /// `trusted` is the fingerprint that the user has trusted already.
    static PlaceAdvice on(const PlaceTrial& trial, const NetworkPlace& place, const QString& trusted);
};

} // namespace quillon
