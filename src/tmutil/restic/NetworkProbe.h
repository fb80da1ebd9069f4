#pragma once

#include "Repository.h"
#include "ResticDiagnosis.h"

#include <optional>
#include <vector>

namespace quillon {

/// What came of asking a network place, which is waited for no longer than ten seconds.
struct NetworkAnswer {
    enum class Contents {
        Unknown, ///< there is a problem
        Empty,   ///< no repository
        Backups  ///< one that the key opens
    };

    Contents contents = Contents::Unknown;
    std::optional<ResticDiagnosis> problem = std::nullopt;
};

/// Asks the place. `keyFile` is tried where no key is kept for it. Throws Failure where a program that is needed is
/// missing.
NetworkAnswer askPlace(const Repository& place, const Folders& folders, const QString& keyFile = {});

/// Throws Failure where a network place cannot be reached or does not let the user in, for the reason that restic may
/// end without telling.
void requireConnection(const Repository& repository, const Folders& folders);

/// Of those the ones that are there, in their order. Network places are asked, all at once; one that answers is there,
/// whatever it answers. Throws Failure as askPlace() does.
std::vector<Destination> presentOf(const std::vector<Destination>& destinations, const Folders& folders);

/// The key by which an SFTP server proves to be itself.
struct HostKey {
    QString line; ///< as a file of known hosts has it
    QString type;

    /// As ssh shows it, "SHA256:…".
    QString fingerprint() const;

    /// Asks the server for it. Throws Failure.
    static HostKey of(const NetworkAccess& access, const Folders& folders);
};

/// The text of a file of known hosts with that key, in the place of others of the same server.
QByteArray withHostKey(const QByteArray& knownHosts, const HostKey& key);

} // namespace quillon
