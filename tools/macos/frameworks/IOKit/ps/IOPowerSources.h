#pragma once

#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef void (*IOPowerSourceCallbackType)(void* context);

CFTypeRef IOPSCopyPowerSourcesInfo(void);
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef sources);
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef sources, CFTypeRef source);
CFStringRef IOPSGetProvidingPowerSourceType(CFTypeRef sources);
CFRunLoopSourceRef IOPSNotificationCreateRunLoopSource(IOPowerSourceCallbackType callback, void* context);

#ifdef __cplusplus
}
#endif
