#pragma once

#include "Task.h"
#include "TmutilScript.h"
#include "VirtualRunLoop.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace quillon {

/// Plays child processes in virtual time. A subclass says how each one behaves.
class VirtualLauncher : public TaskLauncher {
public:
    explicit VirtualLauncher(VirtualRunLoop& runLoop);
    ~VirtualLauncher() override;

    [[nodiscard]] std::unique_ptr<RunningTask> launch(const TaskRequest& request, Completion completion) final;

    /// Children that have not ended.
    int liveChildren() const;
    /// The requests so far.
    const QList<TaskRequest>& launched() const { return launched_; }

protected:
    /// How the child of this request behaves. Its effects on the played system take place now.
    virtual TmutilScript::Call behaviour(const TaskRequest& request) = 0;

private:
    struct Child;
    class Handle;

    VirtualRunLoop& runLoop_;
    std::vector<std::shared_ptr<Child>> children_;
    QList<TaskRequest> launched_;
};

/// Plays a script: every call must come as expected, in order.
class ScriptedLauncher final : public VirtualLauncher {
public:
    ScriptedLauncher(VirtualRunLoop& runLoop, const TmutilScript& script);
    /// Fails the test when a call of the script was never made.
    ~ScriptedLauncher() override;

protected:
    TmutilScript::Call behaviour(const TaskRequest& request) override;

private:
    QList<TmutilScript::Call> remaining_;
};

} // namespace quillon
