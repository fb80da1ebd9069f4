#pragma once

#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct __DASession* DASessionRef;
typedef struct __DADisk* DADiskRef;
typedef void (*DADiskDescriptionChangedCallback)(DADiskRef disk, CFArrayRef keys, void* context);

extern CFArrayRef kDADiskDescriptionWatchVolumePath;

DASessionRef DASessionCreate(CFAllocatorRef allocator);
void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef runLoop, CFStringRef mode);
void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef runLoop, CFStringRef mode);
void DARegisterDiskDescriptionChangedCallback(DASessionRef session, CFDictionaryRef match, CFArrayRef watch,
                                              DADiskDescriptionChangedCallback callback, void* context);
void DAUnregisterCallback(DASessionRef session, void* callback, void* context);

#ifdef __cplusplus
}
#endif
