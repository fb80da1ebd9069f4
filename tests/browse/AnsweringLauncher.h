#pragma once

#include "VirtualLauncher.h"

#include <functional>
#include <map>

namespace quillon {

/// Answers each call with what was put down for it; any other is refused.
class AnsweringLauncher final : public VirtualLauncher {
public:
    using VirtualLauncher::VirtualLauncher;

    std::map<QString, QByteArray> answers; ///< by the arguments, joined with blanks
    QString hanging;                       ///< a call that never ends
    std::function<void(const QStringList& arguments)> effect;

    /// The last call of that command, as in `answers`.
    QString lastCall(const QString& command) const
    {
        QString found;
        for (const TaskRequest& request : launched()) {
            if (request.arguments.first() == command)
                found = request.arguments.join(u' ');
        }
        return found;
    }

protected:
    TmutilScript::Call behaviour(const TaskRequest& request) override
    {
        if (effect)
            effect(request.arguments);
        const auto answer = answers.find(request.arguments.join(u' '));
        TmutilScript::Call call;
        call.status = answer == answers.end() ? 1 : 0;
        call.output = answer == answers.end() ? QByteArray() : answer->second;
        if (request.arguments.join(u' ') == hanging)
            call.fault = TmutilScript::Fault::Hang;
        return call;
    }
};

} // namespace quillon
