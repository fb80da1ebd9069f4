#pragma once

#include "Repository.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace quillon {

class History;
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

    /// Reads a line of its standard error.
    void readLine(const QString& line);
};

/// A part of the data: a tenth of it or, where verifications have been interrupted, a part of that.
struct Slice {
    static constexpr int tenths = 10;
    static constexpr int mostParts = 16;
    static constexpr int networkParts = 8; ///< at least, where reading costs traffic

    int tenth = 1; ///< 1 to tenths
    int part = 0;  ///< 0 to parts - 1
    int parts = 1; ///< a power of two, up to mostParts

    bool operator==(const Slice&) const = default;

    /// As `restic check --read-data-subset` takes it.
    QString subset() const;
    /// The one after it. The parts become larger again with each tenth, but there are no fewer of them than that.
    Slice next(int leastParts = 1) const;
    /// A smaller one in its place, for the time is too short.
    Slice smaller() const;
    /// The same, or the first part of that tenth where its parts would be too large.
    Slice ofParts(int leastParts) const;

    QVariantMap toDictionary() const;
    static Slice fromDictionary(const QVariantMap& entry);
};

/// Damage of a repository, as it is remembered until a verification finds none.
struct Damage {
    QString date; ///< a statusDate()
    CheckFindings findings = {};
    QStringList backups = {}; ///< the names of those that lack something; empty where that cannot be told
    bool repaired = false;    ///< the next backup need not mend it; whether one has is what a verification tells
    QString subset = {};      ///< the Slice::subset() in which it was found; empty for all data
    bool lasting = false;     ///< a backup has tried to mend it, and a verification found it again

    QVariantMap toDictionary() const;
    static std::optional<Damage> fromDictionary(const QVariantMap& entry);

    /// Sentences for people.
    QString description() const;

    /// Whether it stands where a verification of that subset, or of all data where it is empty, finds nothing. What
    /// restic named is looked at each time.
    bool outlasts(const QString& soundSubset) const;

    /// This damage, found where that was known: what is left after a repair cannot be mended by another one.
    Damage after(const std::optional<Damage>& known) const;
};

/// Looks for damage in one repository: the structure, and a slice of the data or all of it.
class Verification {
public:
    /// All must outlive this object.
    Verification(const Repository& repository, const Folders& folders, const StopRequest& stop);

    /// Without a slice, of all data. Gives what is damaged; what was known is looked at again, wherever
    /// it lies. Throws Failure where the repository cannot be looked at, with ExitStatus::Stopped when that was
    /// stopped.
    std::optional<Damage> run(const std::optional<Slice>& slice, const std::optional<Damage>& known) const;

    /// Whether a check that ended so and found that has come upon damage, rather than not been able to look for any.
    static bool tellsOfDamage(const ResticOutcome& outcome, const CheckFindings& findings);

    /// Whether the worker should verify after a backup: a week after the last tenth was read, or the last part of one
    /// at a network place, and once after a repair.
    static bool isDue(const History& history, const QString& destinationId);

    /// Verifies the slice whose turn it is, or all data, and remembers what came of it. After all data, also damage
    /// that lasts is tried to be mended once more. One that was interrupted is followed by one of less data, so that it
    /// comes to an end where backups are made every hour. At most one verification runs; its process holds this lock.
    static std::optional<Damage> runAndRemember(const Repository& repository, const Folders& folders,
                                                const StopRequest& stop, bool all);
    static QString lockPath(const QString& stateFolder);

    /// Asks the one that runs to end, and waits until it has. Gives whether there was one. Throws Failure where it runs
    /// out of reach.
    static bool stopRunning(const QString& stateFolder);

private:
    QStringList affectedBackups(const CheckFindings& findings) const;

    const Repository& repository_;
    const Folders& folders_;
    const StopRequest& stop_;
};

} // namespace quillon
