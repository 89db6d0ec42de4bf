#pragma once

#include "AvailabilityMacros.h"

// https://clang.llvm.org/docs/AttributeReference.html#availability: a call that is newer than macOS 14.0 says so.
#define API_AVAILABLE(version) __attribute__((availability(version)))
#define macos(version) macos, introduced = version
