#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef kern_return_t IOReturn;
typedef mach_port_t io_object_t;
typedef io_object_t io_connect_t;
typedef io_object_t io_service_t;
typedef struct IONotificationPort* IONotificationPortRef;
typedef void (*IOServiceInterestCallback)(void* context, io_service_t service, uint32_t message, void* argument);

#define IO_OBJECT_NULL ((io_object_t)0)

typedef uint32_t IOPMAssertionID;
typedef uint32_t IOPMAssertionLevel;
enum { kIOPMNullAssertionID = 0, kIOPMAssertionLevelOn = 255 };
#define kIOPMAssertionTypePreventUserIdleSystemSleep CFSTR("PreventUserIdleSystemSleep")
IOReturn IOPMAssertionCreateWithName(CFStringRef type, IOPMAssertionLevel level, CFStringRef name,
                                     IOPMAssertionID* assertion);
IOReturn IOPMAssertionRelease(IOPMAssertionID assertion);

io_connect_t IORegisterForSystemPower(void* context, IONotificationPortRef* port, IOServiceInterestCallback callback,
                                      io_object_t* notifier);
IOReturn IODeregisterForSystemPower(io_object_t* notifier);
IOReturn IOAllowPowerChange(io_connect_t rootPort, long notification);
IOReturn IOServiceClose(io_connect_t connection);
CFRunLoopSourceRef IONotificationPortGetRunLoopSource(IONotificationPortRef port);
void IONotificationPortDestroy(IONotificationPortRef port);

#ifdef __cplusplus
}
#endif
