#pragma once

#include "Destination.h"

#include <QString>

namespace quillon {

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
