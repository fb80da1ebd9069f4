#pragma once

#include <QString>

namespace quillon {

/// How the worker learns what `status` has told its callers: an empty file per run and kind of report. Making a file
/// that exists already changes nothing, so any number of callers may mark at once.
class ReportMarks {
public:
    explicit ReportMarks(const QString& stateFolder);

    /// Throws Failure when the folder cannot be made.
    void clear() const;

    /// A caller has been told that this run runs, or that it is finishing.
    void mark(const QString& runId, bool finishing) const;

    bool isReported(const QString& runId) const;
    bool isFinishingReported(const QString& runId) const;

private:
    QString path(const QString& runId, bool finishing) const;

    QString folder_;
};

} // namespace quillon
