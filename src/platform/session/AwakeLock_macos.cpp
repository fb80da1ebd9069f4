#include "AwakeLock.h"
#include "CoreFoundation_macos.h"

#include <IOKit/pwr_mgt/IOPMLib.h>

namespace quillon {

namespace {

class MacAwakeLock final : public AwakeLock {
public:
    ~MacAwakeLock() override { release(); }

    void hold(const QString& reason) override
    {
        const CFOwned<CFStringRef> name(reason.toCFString());
        if (assertion_ == kIOPMNullAssertionID)
            IOPMAssertionCreateWithName(kIOPMAssertionTypePreventUserIdleSystemSleep, kIOPMAssertionLevelOn, name.get(),
                                        &assertion_);
    }

    void release() override
    {
        if (assertion_ != kIOPMNullAssertionID)
            IOPMAssertionRelease(assertion_);
        assertion_ = kIOPMNullAssertionID;
    }

private:
    IOPMAssertionID assertion_ = kIOPMNullAssertionID;
};

} // namespace

std::unique_ptr<AwakeLock> makeAwakeLock()
{
    return std::make_unique<MacAwakeLock>();
}

} // namespace quillon
