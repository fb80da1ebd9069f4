#pragma once

#include <objc/objc.h>

#ifdef __cplusplus
extern "C" {
#endif

void objc_msgSend(void); // cast to the type of the method that it stands for

#ifdef __cplusplus
}
#endif
