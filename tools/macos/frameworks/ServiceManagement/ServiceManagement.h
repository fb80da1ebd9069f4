#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <os/availability.h>

#ifdef __cplusplus
extern "C" {
#endif

Boolean SMLoginItemSetEnabled(CFStringRef identifier, Boolean enabled)
    API_DEPRECATED("Please use SMAppService instead", macos(10.6, 13.0));

#ifdef __cplusplus
}
#endif
