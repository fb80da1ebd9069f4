#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace quillon {

/// A backup disk: a folder, usually where a disk is mounted, that holds this user's repository; or a network place.
struct Destination {
    QString id;        ///< random UUID in upper case
    QString name;      ///< shown to people
    QString path;      ///< absolute, without links; of a network place its URL
    bool bare = false; ///< the path is that of a repository itself, which was made by hand and taken up

    bool operator==(const Destination&) const = default;

    bool isNetwork() const;

    /// Where restic keeps the backups. The folder is made when the destination is set and bears its identifier, so
    /// that the empty mount point of an absent disk, or another disk in its place, is not taken for it.
    QString repository() const;

    /// Whether the disk is there, and what is on it is this user's. A network place is not asked and passes for one
    /// that is.
    bool isPresent() const;

    /// A sentence on a disk that is not there, is another one than before, or holds what is not this user's.
    QString absence() const;

    /// The folder of a disk in which the repositories of all its users lie.
    static QString backupFolder(const QString& path);
};

class History;

/// The destination with that identifier. Throws Failure where there is none, or where its disk is not there.
Destination namedDestination(const std::vector<Destination>& destinations, const QString& id);

/// Asks which of those destinations are there; it may take as long as network places are waited for.
using PresenceQuestion = std::function<std::vector<Destination>(const std::vector<Destination>& destinations)>;

/// The destination used last, or else the first one present. The others are asked for only where that is away. Throws
/// Failure where none is present.
Destination usualDestination(const std::vector<Destination>& destinations, const History& history,
                             const PresenceQuestion& presentOf);

/// Of those present the one whose last backup is oldest; one without any backup is older than all. Throws Failure
/// where none is present.
Destination rotatedDestination(const std::vector<Destination>& destinations, const History& history,
                               const PresenceQuestion& presentOf);

/// A new key for people to write down: six groups of five characters, "8K2VT-…", 140 random bits and a check sum. None
/// of the characters is easily taken for another.
QString makeRecoveryKey();

/// What a person has typed, as makeRecoveryKey() wrote it: case, blanks and dashes don't count, and O, I and L stand
/// for 0 and 1. Empty where it is no such key, or not without a mistake.
QString recoveryKeyFrom(const QString& typed);

/// The keys of the repositories, a file each, readable by the user only: restic's password files. A key is never
/// removed or overwritten, since without it the backups are lost. Beside it stands which recovery key the user has.
class KeyStore {
public:
    explicit KeyStore(const QString& configurationFolder);

    QString path(const QString& destinationId) const;
    bool contains(const QString& destinationId) const;

    /// Throws Failure, which says what to do, unless there is one that can be read.
    void require(const Destination& destination) const;

    /// A random key of 256 bits.
    static QString makeKey();

    /// Makes a key unless there is one. Throws Failure.
    void ensure(const QString& destinationId) const;

    /// Keeps that key. One that is there is put aside beside it, under a longer name. Throws Failure.
    void store(const QString& destinationId, const QString& key) const;

    /// restic's identifier of the recovery key that the user has written down or saved; empty where there is none.
    QString keptRecoveryKey(const QString& destinationId) const;
    /// Empty where the user has none any more. Throws Failure.
    void setKeptRecoveryKey(const QString& destinationId, const QString& identifier) const;

private:
    QString keptPath(const QString& destinationId) const;

    QString folder_;
};

} // namespace quillon
