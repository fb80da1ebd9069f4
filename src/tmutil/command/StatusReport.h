#pragma once

#include "Folders.h"
#include "RunState.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

/// What `status` says, in the system tool's words.
class StatusReport {
public:
    /// Throws Failure where it cannot be told whether a backup runs.
    explicit StatusReport(const Folders& folders);

    /// A heading line and an old-style property list. Progress is there while copying only; the cause of the last
    /// failure stands under "LastFailure" until a backup has succeeded. Throws Failure.
    QByteArray text() const;

    /// To be called once the caller has the text: the worker waits to be seen before it ends a run.
    void markReported() const;

private:
    QVariantMap dictionary() const;

    QVariantMap failure() const;

    Folders folders_;
    std::optional<RunState> run_;
};

} // namespace quillon
