#include "CoreFoundation_macos.h"
#include "MountWatch.h"

#include <DiskArbitration/DiskArbitration.h>

namespace quillon {

namespace {

/// Disk Arbitration tells of every disk whose volume gets or loses its place among the files.
class DiskArbitrationMountWatch final : public MountWatch {
public:
    DiskArbitrationMountWatch()
        : session_(DASessionCreate(kCFAllocatorDefault))
    {
        if (!session_)
            return;
        DARegisterDiskDescriptionChangedCallback(session_.get(), nullptr, kDADiskDescriptionWatchVolumePath,
                                                 pathChanged, this);
        DASessionScheduleWithRunLoop(session_.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
    }

    ~DiskArbitrationMountWatch() override
    {
        if (!session_)
            return;
        DASessionUnscheduleFromRunLoop(session_.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
        DAUnregisterCallback(session_.get(), reinterpret_cast<void*>(pathChanged), this);
    }

private:
    static void pathChanged(DADiskRef, CFArrayRef, void* watch)
    {
        Q_EMIT static_cast<DiskArbitrationMountWatch*>(watch)->changed();
    }

    const CFOwned<DASessionRef> session_;
};

} // namespace

std::unique_ptr<MountWatch> makeMountWatch()
{
    return std::make_unique<DiskArbitrationMountWatch>();
}

} // namespace quillon
