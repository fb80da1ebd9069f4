#pragma once

#include <QSocketNotifier>

#include <array>

namespace quillon {

/// Makes the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) an orderly quit of the application. One object
/// per program, for as long as the event loop runs.
class QuitSignals {
public:
    QuitSignals();
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;
    ~QuitSignals();

private:
    std::array<int, 2> pipe_{-1, -1};
    QSocketNotifier notifier_{QSocketNotifier::Read};
};

} // namespace quillon
