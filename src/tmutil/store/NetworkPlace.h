#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include <optional>

namespace quillon {

struct Folders;

/// A repository on a server, as its URL names it: "sftp://…", "rest:https://…" or "s3:https://…". Secrets are no part
/// of it.
struct NetworkPlace {
    enum class Kind { Sftp, Rest, S3 };

    Kind kind = Kind::Sftp;
    QUrl url; ///< without "rest:" and "s3:"

    bool operator==(const NetworkPlace&) const = default;

    /// Whether that is meant for such a URL rather than for a path.
    static bool isUrl(const QString& text);

    /// Throws Failure where it is none that can be used.
    static NetworkPlace fromUrl(const QString& text);

    /// The URL in its one form, which people see and by which the place is known.
    QString text() const;

    /// The last part of the path, or else the server's name.
    QString name() const;
};

/// What lets this user into a network place, and how fast it may be used.
struct NetworkAccess {
    static constexpr int mostLimit = 10'000'000;

    NetworkPlace place;
    QVariantMap credentials = {}; ///< texts by the names that parseCredentials() takes
    int uploadLimit = 0;          ///< in KiB a second; 0 for none
    int downloadLimit = 0;
    QString knownHosts = {}; ///< the file with the servers' keys that the user has accepted here

    /// The one that is kept for a destination. Throws Failure where none is, or it is damaged.
    static NetworkAccess load(const Folders& folders, const QString& destinationId);

    /// The identifier of the destination that had this place, be it that it was removed since; empty where none had.
    static QString identifierOf(const Folders& folders, const NetworkPlace& place);

    /// Keeps it, in a file that only the user can read. Throws Failure.
    void save(const Folders& folders, const QString& destinationId) const;

    /// Keeps of it the place alone, by which the backups are found again. Throws Failure.
    static void removeSecrets(const Folders& folders, const QString& destinationId);

    static QString knownHostsFile(const Folders& folders);

    /// Takes lines "name=value" in the place of the credentials there are. A user becomes part of the URL. Throws
    /// Failure.
    void parseCredentials(const QByteArray& lines);

    /// Throws Failure where a credential that the place cannot do without is missing, or a file named in them is.
    void requireCredentials() const;

    /// What restic finds in its environment: the repository and the secrets.
    QStringList environment() const;

    /// The options of every call of restic.
    QStringList options() const;

    /// For SFTP the program that reaches the server, and its arguments.
    QStringList sshCommand() const;

private:
    QString credential(const QString& name) const { return credentials.value(name).toString(); }
};

} // namespace quillon
