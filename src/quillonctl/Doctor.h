#pragma once

#include "Calendar.h"
#include "Diagnosis.h"
#include "ToolQuestion.h"
#include "UserDefaults.h"

namespace quillon {

/// Finds out what `quillonctl doctor` tells, and changes nothing.
class Doctor {
public:
    /// Longer than a disk takes to spin up.
    static constexpr std::chrono::seconds patience{20};

    /// `defaults` has the registered defaults behind it; `tool` is the path of tmutil.
    Doctor(RunLoop& runLoop, TaskLauncher& launcher, const UserDefaults& defaults, QString tool);

    /// Waits for the tool, up to `limit` for each of its two answers.
    Diagnosis examine(std::chrono::seconds limit = patience);

private:
    void examineProgram(Diagnosis& found) const;
    void examineStatus(Diagnosis& found, const ToolAnswer& answer) const;
    void examineDisks(Diagnosis& found, const ToolAnswer& answer) const;
    void examineSchedule(Diagnosis& found) const;
    void examineTimeZone(Diagnosis& found) const;

    RunLoop& runLoop_;
    TaskLauncher& launcher_;
    const UserDefaults& defaults_;
    const QString tool_;
};

} // namespace quillon
