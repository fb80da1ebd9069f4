#pragma once

#include <QVariantMap>

#include <optional>

namespace quillon {

/// How far copying has come.
struct BackupProgress {
    std::optional<double> fraction = std::nullopt;            ///< 0 to 1, once the scan has ended
    std::optional<qlonglong> secondsRemaining = std::nullopt; ///< once it can be estimated
    qlonglong bytes = 0;                                      ///< read so far
    qlonglong totalBytes = 0;                                 ///< found so far; final once the scan has ended
    qlonglong files = 0;
    qlonglong totalFiles = 0;

    bool operator==(const BackupProgress&) const = default;

    /// The system tool's dictionary "Progress", in which a "Percent" of -1 stands for an unknown one.
    QVariantMap toDictionary() const;
};

} // namespace quillon
