#include "ProcessInfo.h"

#include <QCoreApplication>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

// A signal handler is given nothing but the signal's number.
volatile sig_atomic_t writeEnd = -1;

void passOn(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1);
}

void handleWith(void (*handler)(int))
{
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}

} // namespace

QuitSignals::QuitSignals()
{
    if (pipe(pipe_.data()) != 0)
        return; // the signals end the program as they always did
    for (const int end : pipe_) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    writeEnd = pipe_[1];
    notifier_.setSocket(pipe_[0]);
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
        char byte = 0;
        while (read(pipe_[0], &byte, 1) == 1) {
        }
        QCoreApplication::quit();
    });
    notifier_.setEnabled(true);
    handleWith(passOn);
}

QuitSignals::~QuitSignals()
{
    handleWith(SIG_DFL);
    for (const int end : pipe_) {
        if (end >= 0)
            close(end);
    }
}

} // namespace quillon
