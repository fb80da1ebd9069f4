#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <os/availability.h>

#ifdef __cplusplus
extern "C" {
#endif

// Launch Services
enum { kLSApplicationNotFoundErr = -10814 };
OSStatus LSOpenCFURLRef(CFURLRef url, CFURLRef* launchedURL);
CFArrayRef LSCopyApplicationURLsForBundleIdentifier(CFStringRef bundleIdentifier, CFErrorRef* error)
    API_AVAILABLE(macos(10.10));

// Apple events
typedef FourCharCode AEEventClass;
typedef FourCharCode AEEventID;
typedef struct AEDesc AppleEvent;
typedef OSErr (*AEEventHandlerProcPtr)(const AppleEvent* event, AppleEvent* reply, SRefCon context);
typedef AEEventHandlerProcPtr AEEventHandlerUPP;
enum { kCoreEventClass = 'aevt', kAEReopenApplication = 'rapp' };
AEEventHandlerUPP NewAEEventHandlerUPP(AEEventHandlerProcPtr handler);
void DisposeAEEventHandlerUPP(AEEventHandlerUPP handler);
OSErr AEInstallEventHandler(AEEventClass eventClass, AEEventID event, AEEventHandlerUPP handler, SRefCon context,
                            Boolean isSystemHandler);
OSErr AERemoveEventHandler(AEEventClass eventClass, AEEventID event, AEEventHandlerUPP handler,
                           Boolean isSystemHandler);

#ifdef __cplusplus
}
#endif
