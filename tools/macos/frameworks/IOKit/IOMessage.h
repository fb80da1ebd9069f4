#pragma once

#include <stdint.h>

// Messages of a root power domain, QA1340 "Registering and unregistering for sleep and wake notifications".
#define kIOMessageCanSystemSleep ((uint32_t)0xe0000270)
#define kIOMessageSystemWillSleep ((uint32_t)0xe0000280)
#define kIOMessageSystemHasPoweredOn ((uint32_t)0xe0000300)
