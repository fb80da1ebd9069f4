#pragma once

#include "PrivateBus.h"

namespace quillon {

/// logind as python-dbusmock plays it: the locks that it hands out are real file descriptors.
class PlayedLogind {
public:
    /// Returns when the name is owned.
    explicit PlayedLogind(const PrivateBus& bus);
    PlayedLogind(const PlayedLogind&) = delete;
    PlayedLogind& operator=(const PlayedLogind&) = delete;
    /// Returns when the name is free.
    ~PlayedLogind();

    /// Announces sleep (true) or wake (false).
    void prepareForSleep(bool start);
    /// The locks held right now, each as "what mode".
    QStringList locks();
    /// Hangs, and goes on.
    void stop();
    void resume();

private:
    bool hasOwner() const;

    QDBusConnection bus_;
    ChildProgram mock_;
};

} // namespace quillon
