#pragma once

#include <CoreGraphics/CoreGraphics.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/coregraphics/cgevent and …/cgeventsource: what a "Create" function answers
// is released by the caller.
typedef struct __CGEvent *CGEventRef;
typedef struct __CGEventSource *CGEventSourceRef;
typedef uint16_t CGKeyCode;
typedef CF_ENUM(uint32_t, CGEventTapLocation) { kCGHIDEventTap = 0, kCGSessionEventTap = 1 };
typedef CF_ENUM(int32_t, CGEventSourceStateID) {
    kCGEventSourceStatePrivate = -1,
    kCGEventSourceStateCombinedSessionState = 0,
    kCGEventSourceStateHIDSystemState = 1,
};
typedef CF_ENUM(uint32_t, CGEventField) { kCGKeyboardEventAutorepeat = 8, kCGKeyboardEventKeycode = 9 };
SHIM_EXTERN CGEventSourceRef _Nullable CGEventSourceCreate(CGEventSourceStateID state);
SHIM_EXTERN CGEventRef _Nullable CGEventCreateKeyboardEvent(CGEventSourceRef _Nullable source, CGKeyCode keyCode,
                                                            bool isDown);
SHIM_EXTERN void CGEventSetIntegerValueField(CGEventRef _Nullable event, CGEventField field, int64_t value);
SHIM_EXTERN void CGEventPost(CGEventTapLocation tap, CGEventRef _Nullable event);
SHIM_EXTERN bool CGPreflightPostEventAccess(void);

#pragma clang assume_nonnull end
