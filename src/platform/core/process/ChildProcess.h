#pragma once

#include "TaskLauncher.h"

#include <QProcess>

namespace quillon {

/// A child process of Task. It deletes itself once it has ended and reported; destroyed before that, it leaves the
/// child running.
class ChildProcess final : public QProcess {
    Q_OBJECT

public:
    ChildProcess(const TaskRequest& request, TaskLauncher::Completion completion, QObject* parent);
    ~ChildProcess() override;

    /// The completion will not be called; the child runs on and is still waited for.
    void forgetCompletion() { completion_ = nullptr; }

private:
    void collectOutput();
    void collectErrors();
    void reportLater(int status);

    TaskLauncher::Completion completion_;
    QByteArray output_;
    QByteArray errors_;
    bool outputBoundExceeded_ = false;
};

} // namespace quillon
