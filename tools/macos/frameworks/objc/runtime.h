#pragma once

#include <objc/objc.h>

#ifdef __cplusplus
extern "C" {
#endif

Class objc_getClass(const char* name);

#ifdef __cplusplus
}
#endif
