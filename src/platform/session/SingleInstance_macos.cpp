#include "SingleInstance.h"

#include <CoreServices/CoreServices.h>
#include <unistd.h>
#include <utility>

namespace quillon {

bool isPeerOwnUser(qintptr socket)
{
    uid_t user = 0;
    gid_t group = 0;
    return getpeereid(static_cast<int>(socket), &user, &group) == 0 && user == geteuid();
}

namespace {

/// The Apple event that a double click on the running application sends: AppleEvents.h, "reopen application".
class ReopenWatch final : public QObject {
public:
    explicit ReopenWatch(std::function<void()> reopened)
        : reopened_(std::move(reopened))
    {
        // NSApplication puts its own handler in its place when the event loop begins, so ours has to come later.
        QMetaObject::invokeMethod(this, &ReopenWatch::install, Qt::QueuedConnection);
    }

    ~ReopenWatch() override
    {
        AERemoveEventHandler(kCoreEventClass, kAEReopenApplication, handler_, false);
        DisposeAEEventHandlerUPP(handler_);
    }

private:
    void install() { AEInstallEventHandler(kCoreEventClass, kAEReopenApplication, handler_, this, false); }

    static OSErr received(const AppleEvent* /*event*/, AppleEvent* /*reply*/, SRefCon watch)
    {
        // Queued: who sent the event may wait for the handler's end, and what is opened may wait for the user.
        auto* self = static_cast<ReopenWatch*>(watch);
        QMetaObject::invokeMethod(
            self, [self] { self->reopened_(); }, Qt::QueuedConnection);
        return noErr;
    }

    std::function<void()> reopened_;
    AEEventHandlerUPP handler_ = NewAEEventHandlerUPP(received);
};

} // namespace

std::unique_ptr<QObject> makeReopenWatch(const std::function<void()>& reopened)
{
    return std::make_unique<ReopenWatch>(reopened);
}

} // namespace quillon
