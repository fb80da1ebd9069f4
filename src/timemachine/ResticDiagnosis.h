#pragma once

#include <QString>

namespace quillon {

/// What restic 0.14 can mean by failing. Its exit statuses do not tell, so its words on standard error are read; they
/// are known nowhere else.
enum class ResticProblem {
    Locked,       ///< another process, or one that died, holds the repository
    NoRepository, ///< there is no repository, or a part of it is gone
    WrongKey,     ///< the key does not open it
    NoSpace,
    NoPermission,
    Unknown,
};

struct ResticDiagnosis {
    ResticProblem problem = ResticProblem::Unknown;
    QString description; ///< one line for people; restic's own words where the problem is unknown

    /// A word for programs, such as "NoSpace".
    QString cause() const;

    /// Reads the standard error of a restic that failed with that exit status.
    static ResticDiagnosis of(const QString& errorText, int exitStatus);
};

} // namespace quillon
