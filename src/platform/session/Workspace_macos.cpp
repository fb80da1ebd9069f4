#include "CoreFoundation_macos.h"
#include "RunLoop.h"
#include "Services.h"

#include <CoreServices/CoreServices.h>
#include <DiskArbitration/DiskArbitration.h>
#include <IOKit/IOMessage.h>
#include <IOKit/pwr_mgt/IOPMLib.h>
#include <cstdint>
#include <utility>

namespace quillon {

/// Opens addresses with LaunchServices, hears of sleep from the power management of IOKit.
class MacWorkspace final : public Workspace {
public:
    explicit MacWorkspace(RunLoop& runLoop);
    ~MacWorkspace() override;

    /// The completion gets true when LaunchServices has found the program and taken the request; it does not wait for
    /// the launch.
    void openURL(const QUrl& url, Completion completion) override;
    void openApplication(const QString& bundleIdentifier, Completion completion) override;

private:
    void report(bool opened, Completion completion);
    static void powerChanged(void* workspace, io_service_t, natural_t message, void* argument);

    RunLoop& runLoop_;
    IONotificationPortRef port_ = nullptr;
    io_object_t notifier_ = IO_OBJECT_NULL;
    io_connect_t rootPort_ = MACH_PORT_NULL;
};

MacWorkspace::MacWorkspace(RunLoop& runLoop)
    : runLoop_(runLoop)
{
    rootPort_ = IORegisterForSystemPower(this, &port_, powerChanged, &notifier_);
    if (rootPort_ == MACH_PORT_NULL)
        return;
    // The common modes: also while a menu is open.
    CFRunLoopAddSource(CFRunLoopGetMain(), IONotificationPortGetRunLoopSource(port_), kCFRunLoopCommonModes);
}

MacWorkspace::~MacWorkspace()
{
    if (rootPort_ == MACH_PORT_NULL)
        return;
    CFRunLoopRemoveSource(CFRunLoopGetMain(), IONotificationPortGetRunLoopSource(port_), kCFRunLoopCommonModes);
    IODeregisterForSystemPower(&notifier_);
    IOServiceClose(rootPort_);
    IONotificationPortDestroy(port_);
}

void MacWorkspace::openURL(const QUrl& url, Completion completion)
{
    const CFOwned<CFURLRef> address(url.isRelative() ? nullptr : url.toCFURL());
    report(address && LSOpenCFURLRef(address.get(), nullptr) == noErr, std::move(completion));
}

void MacWorkspace::openApplication(const QString& bundleIdentifier, Completion completion)
{
    const CFOwned<CFStringRef> identifier(bundleIdentifier.toCFString());
    // LSInfo.h: null when there is none, and the best one comes first.
    const CFOwned<CFArrayRef> found(LSCopyApplicationURLsForBundleIdentifier(identifier.get(), nullptr));
    const auto* application = found ? static_cast<CFURLRef>(CFArrayGetValueAtIndex(found.get(), 0)) : nullptr;
    report(application && LSOpenCFURLRef(application, nullptr) == noErr, std::move(completion));
}

void MacWorkspace::report(bool opened, Completion completion)
{
    if (completion)
        runLoop_.enqueue([completion = std::move(completion), opened] { completion(opened); });
}

void MacWorkspace::powerChanged(void* workspace, io_service_t, natural_t message, void* argument)
{
    auto* self = static_cast<MacWorkspace*>(workspace);
    // IOPMLib.h: sleep waits up to 30 s for the answer to each of the first two messages. A wake for background work
    // alone, in which the user sees nothing, is not announced.
    switch (message) {
    case kIOMessageCanSystemSleep:
        IOAllowPowerChange(self->rootPort_, reinterpret_cast<std::intptr_t>(argument));
        break;
    case kIOMessageSystemWillSleep:
        Q_EMIT self->willSleep();
        IOAllowPowerChange(self->rootPort_, reinterpret_cast<std::intptr_t>(argument));
        break;
    case kIOMessageSystemHasPoweredOn:
        Q_EMIT self->didWake();
        break;
    default:
        break;
    }
}

std::unique_ptr<Workspace> makeWorkspace(RunLoop& runLoop, const WorkspaceNeeds& /*needs*/)
{
    return std::make_unique<MacWorkspace>(runLoop);
}

namespace {

/// Disk Arbitration tells of every disk whose volume gets or loses its place among the files.
class DiskArbitrationMountWatch final : public MountWatch {
public:
    ~DiskArbitrationMountWatch() override { setWatching(false); }

    void setWatching(bool watching) override
    {
        if (!session_ || watching == isWatching_)
            return;
        isWatching_ = watching;
        if (watching) {
            DARegisterDiskDescriptionChangedCallback(session_.get(), nullptr, kDADiskDescriptionWatchVolumePath,
                                                     pathChanged, this);
            DASessionScheduleWithRunLoop(session_.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
        } else {
            DASessionUnscheduleFromRunLoop(session_.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
            DAUnregisterCallback(session_.get(), reinterpret_cast<void*>(pathChanged), this);
        }
    }

private:
    static void pathChanged(DADiskRef, CFArrayRef, void* watch)
    {
        Q_EMIT static_cast<DiskArbitrationMountWatch*>(watch)->changed();
    }

    const CFOwned<DASessionRef> session_{DASessionCreate(kCFAllocatorDefault)};
    bool isWatching_ = false;
};

} // namespace

std::unique_ptr<MountWatch> makeMountWatch()
{
    return std::make_unique<DiskArbitrationMountWatch>();
}

} // namespace quillon
