#include "CoreFoundation_macos.h"
#include "MountWatch.h"

#include <DiskArbitration/DiskArbitration.h>

namespace quillon {

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
