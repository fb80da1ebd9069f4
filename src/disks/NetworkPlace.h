#pragma once

#include "Setup.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace quillon {

/// A place on a server where backups are kept, as the user describes it: where it is, and what lets the user in.
struct NetworkPlace {
    enum class Kind { Sftp, Rest, S3 };

    enum class Field {
        Server,
        Port,
        Path, ///< a folder; from that of the login on where it begins with "~/", for SFTP; S3: bucket and folder in it
        User,
        KeyFile,
        Password,
        AccessKey,
        SecretKey,
        Region,
        Certificate, ///< file with the certificate of the server, or of who has issued it
    };

    Kind kind = Kind::Sftp;
    bool secure = true;           ///< by HTTPS; SFTP has a way of its own
    QMap<Field, QString> texts{}; ///< as they were typed

    bool operator==(const NetworkPlace&) const = default;

    /// A place by what tmutil calls it.
    static std::optional<NetworkPlace> fromUrl(const QString& url);

    /// Without what surrounds it, but for passwords, which may begin or end with a blank.
    QString text(Field field) const;

    /// What describes a place of this kind, in the order in which it is asked for.
    QList<Field> fields() const;

    /// Those of them that let the user into the place, which is the same whatever they are.
    QList<Field> accessFields() const;

    /// Whether the place can do without it.
    bool isOptional(Field field) const;

    /// What is still lacking or makes no sense, in a sentence for people; empty where nothing is.
    QString lack() const;

    /// What tmutil calls the place. No secret is in it.
    QString url() const;

    /// What lets the user in, in the lines that tmutil takes.
    QByteArray credentials() const;
};

/// What the field is called, for a place of that kind.
QString fieldTitle(NetworkPlace::Field field, NetworkPlace::Kind kind);

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
