#pragma once

// The versions of the system that Qt's headers compare with. The oldest that Vantrel runs on is 14.0.
#define __MAC_10_0 1000
#define __MAC_10_6 1060
#define __MAC_10_9 1090
#define __MAC_10_14 101400
#define __MAC_10_15 101500
#define __MAC_11_0 110000
#define __MAC_12_0 120000
#define __MAC_13_0 130000
#define __MAC_14_0 140000
#define __MAC_NA 9999
#define __MAC_OS_X_VERSION_MIN_REQUIRED 140000
#define __MAC_OS_X_VERSION_MAX_ALLOWED 140000
#define MAC_OS_X_VERSION_10_6 1060
#define MAC_OS_X_VERSION_10_14 101400
#define MAC_OS_X_VERSION_MIN_REQUIRED 140000
#define MAC_OS_X_VERSION_MAX_ALLOWED 140000
