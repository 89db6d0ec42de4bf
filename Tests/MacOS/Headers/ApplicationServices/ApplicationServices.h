#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/applicationservices/axuielement_h
SHIM_EXTERN Boolean AXIsProcessTrusted(void);
SHIM_EXTERN Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef _Nullable options);
SHIM_EXTERN const CFStringRef kAXTrustedCheckOptionPrompt;

// https://developer.apple.com/documentation/coreservices/3025784-aedeterminepermissiontoautomatet: blocks while the
// user is asked; the target has to run.
SHIM_EXTERN OSStatus AEDeterminePermissionToAutomateTarget(const AEAddressDesc *_Nullable target,
                                                           AEEventClass eventClass, AEEventID eventID,
                                                           Boolean askUserIfNeeded);

// https://developer.apple.com/documentation/coreservices/1446350-lsregisterurl
SHIM_EXTERN OSStatus LSRegisterURL(CFURLRef url, Boolean isUpdate);

#pragma clang assume_nonnull end
