#include "CoreFoundation_macos.h"
#include "Services.h"

#include <IOKit/ps/IOPSKeys.h>
#include <IOKit/ps/IOPowerSources.h>
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

namespace {

/// IOPowerSources.h: capacities are in per cent of the largest one.
int number(CFDictionaryRef description, CFStringRef key)
{
    int value = 0;
    const auto* found = static_cast<CFNumberRef>(CFDictionaryGetValue(description, key));
    if (found)
        CFNumberGetValue(found, kCFNumberIntType, &value);
    return value;
}

std::optional<int> batteryCharge(CFTypeRef sources)
{
    const CFOwned<CFArrayRef> list(IOPSCopyPowerSourcesList(sources));
    for (CFIndex i = 0; list && i < CFArrayGetCount(list.get()); ++i) {
        const CFDictionaryRef battery =
            IOPSGetPowerSourceDescription(sources, CFArrayGetValueAtIndex(list.get(), i)); // not ours to release
        if (const int full = battery ? number(battery, CFSTR(kIOPSMaxCapacityKey)) : 0; full > 0)
            return 100 * number(battery, CFSTR(kIOPSCurrentCapacityKey)) / full;
    }
    return std::nullopt;
}

PowerState powerNow()
{
    const CFOwned<CFTypeRef> sources(IOPSCopyPowerSourcesInfo());
    if (!sources)
        return {};
    const CFStringRef providing = IOPSGetProvidingPowerSourceType(sources.get()); // not ours to release
    return {.onMains = !providing || QString::fromCFString(providing) != QLatin1StringView(kIOPSBatteryPowerValue),
            .charge = batteryCharge(sources.get())};
}

class MacPowerSupply final : public PowerSupply {
public:
    ~MacPowerSupply() override { setWatching(false); }

    PowerState state() const override { return state_; }

    void setWatching(bool watching) override
    {
        if (!source_ || watching == isWatching_)
            return;
        isWatching_ = watching;
        if (watching)
            CFRunLoopAddSource(CFRunLoopGetMain(), source_.get(), kCFRunLoopCommonModes);
        else
            CFRunLoopRemoveSource(CFRunLoopGetMain(), source_.get(), kCFRunLoopCommonModes);
        refresh();
    }

    void refresh() override
    {
        const PowerState now = isWatching_ ? powerNow() : PowerState();
        if (now == state_)
            return;
        state_ = now;
        Q_EMIT changed();
    }

private:
    const CFOwned<CFRunLoopSourceRef> source_{IOPSNotificationCreateRunLoopSource(
        [](void* supply) { static_cast<MacPowerSupply*>(supply)->refresh(); }, this)};
    bool isWatching_ = false;
    PowerState state_;
};

} // namespace

std::unique_ptr<PowerSupply> makePowerSupply()
{
    return std::make_unique<MacPowerSupply>();
}

} // namespace quillon
