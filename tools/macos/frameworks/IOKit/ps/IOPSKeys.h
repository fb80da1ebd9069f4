#pragma once

#define kIOPSCurrentCapacityKey "Current Capacity"
#define kIOPSMaxCapacityKey "Max Capacity"
#define kIOPSBatteryPowerValue "Battery Power"
