#pragma once

#include "RepositoryFolder.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace quillon {

class History;
class Restic;
struct ResticOutcome;
class StopRequest;
struct Folders;

/// What `restic check` complains of.
struct CheckFindings {
    QStringList packs; ///< files of data, by their identifiers, that are missing or not as they were written
    QStringList trees; ///< folders, by their identifiers, of which something is missing

    bool operator==(const CheckFindings&) const = default;

    /// Whether the others have nothing that these lack. What restic does not name is only like what it does not name.
    bool cover(const CheckFindings& others) const;

    /// Reads its standard error.
    static CheckFindings of(const QString& errorText);
};

/// Damage of a repository, as it is remembered until a verification finds none.
struct Damage {
    QString date; ///< a statusDate()
    CheckFindings findings = {};
    QStringList backups = {}; ///< the names of those that lack something; empty where that cannot be told
    bool repaired = false;    ///< the next backup need not mend it; whether one has is what a verification tells
    int slice = 0;            ///< the slice in which it was found, or 0 for all data
    bool lasting = false;     ///< a backup has tried to mend it, and a verification found it again

    QVariantMap toDictionary() const;
    static std::optional<Damage> fromDictionary(const QVariantMap& entry);

    /// Sentences for people.
    QString description() const;

    /// Whether it stands where a verification of that slice finds nothing. What restic named is looked at each time.
    bool outlasts(int soundSlice) const;

    /// This damage, found where that was known: what is left after a repair cannot be mended by another one.
    Damage after(const std::optional<Damage>& known) const;
};

/// Looks for damage in one repository: the structure, and a tenth of the data or all of it.
class Verification {
public:
    static constexpr int slices = 10;

    /// All must outlive this object.
    Verification(const RepositoryFolder& repository, const Folders& folders, const StopRequest& stop);

    /// `slice` is 1 to slices, or 0 for all data. Gives what is damaged; what was known is looked at again, wherever
    /// it lies. Throws Failure where the repository cannot be looked at, with ExitStatus::Stopped when that was
    /// stopped.
    std::optional<Damage> run(int slice, const std::optional<Damage>& known) const;

    /// Whether a check that ended so and found that has come upon damage, rather than not been able to look for any.
    static bool tellsOfDamage(const ResticOutcome& outcome, const CheckFindings& findings);

    /// Whether the worker should verify after a backup: a week after the last time, and once after a repair.
    static bool isDue(const History& history, const QString& destinationId);

    /// Verifies the slice whose turn it is, or all data, and remembers what came of it. After all data, also damage
    /// that lasts is tried to be mended once more. At most one verification runs; its process holds this lock.
    static std::optional<Damage> runAndRemember(const RepositoryFolder& repository, const Folders& folders,
                                                const StopRequest& stop, bool all);
    static QString lockPath(const QString& stateFolder);

    /// Asks the one that runs to end, and waits until it has. Gives whether there was one.
    static bool stopRunning(const QString& stateFolder);

private:
    QStringList affectedBackups(const CheckFindings& findings) const;

    const RepositoryFolder& repository_;
    const Folders& folders_;
    const StopRequest& stop_;
};

/// Of those files of data the ones that are there and not as they were written.
QStringList damagedPacks(const RepositoryFolder& repository, const QStringList& packs);

/// Prepares a damaged repository for the next backup, which stores anew what it does not find: restic saves what it can
/// of files of data that are not as they were written, if it knows how to, and the index is made anew. Throws Failure.
void repairRepository(const RepositoryFolder& repository, const QStringList& packs, const Restic& restic);

} // namespace quillon
