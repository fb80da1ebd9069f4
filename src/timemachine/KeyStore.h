#pragma once

#include <QString>

namespace quillon {

/// The keys of the repositories, a file each, readable by the user only: restic's password files. A key is never
/// removed or replaced, since without it the backups are lost.
class KeyStore {
public:
    explicit KeyStore(const QString& configurationFolder);

    QString path(const QString& destinationId) const;
    bool contains(const QString& destinationId) const;

    /// Makes a random key of 256 bits unless there is one. Throws Failure.
    void ensure(const QString& destinationId) const;

private:
    QString folder_;
};

} // namespace quillon
