#include "StopRequest.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace quillon {

bool endWithParent(int signal, pid_t parent) noexcept
{
    prctl(PR_SET_PDEATHSIG, signal);
    return getppid() == parent;
}

namespace {

int blockedSignalsDescriptor()
{
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, number);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

StopRequest::StopRequest()
    : descriptor_(blockedSignalsDescriptor())
{
    auto* notifier = new QSocketNotifier(descriptor_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &StopRequest::readSignal);
}

StopRequest::~StopRequest()
{
    close(descriptor_);
}

void StopRequest::readSignal()
{
    signalfd_siginfo information{};
    if (read(descriptor_, &information, sizeof information) != sizeof information || made_)
        return;
    made_ = true;
    Q_EMIT made();
}

} // namespace quillon
