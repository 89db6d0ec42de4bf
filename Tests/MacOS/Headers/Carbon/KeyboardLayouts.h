#pragma once

#include <CoreFoundation/CoreFoundation.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/carbon/text_input_sources_reference, and the bindings of the current SDK:
// what a "Copy" function answers is released by the caller, a property belongs to its source. Traps off the main
// thread.
typedef struct __TISInputSource *TISInputSourceRef;
SHIM_EXTERN TISInputSourceRef _Nullable TISCopyCurrentKeyboardLayoutInputSource(void);
SHIM_EXTERN TISInputSourceRef _Nullable TISCopyCurrentASCIICapableKeyboardLayoutInputSource(void);
SHIM_EXTERN TISInputSourceRef _Nullable TISCopyCurrentKeyboardInputSource(void);
SHIM_EXTERN CFArrayRef _Null_unspecified TISCreateInputSourceList(CFDictionaryRef _Nullable properties,
                                                                  Boolean includeAllInstalled);
SHIM_EXTERN OSStatus TISSelectInputSource(TISInputSourceRef source);
SHIM_EXTERN OSStatus TISEnableInputSource(TISInputSourceRef source);
SHIM_EXTERN OSStatus TISDisableInputSource(TISInputSourceRef source);
SHIM_EXTERN const CFStringRef kTISPropertyInputSourceID;
SHIM_EXTERN const CFStringRef kTISPropertyInputSourceIsEnabled;
SHIM_EXTERN void *_Nullable TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef key);
SHIM_EXTERN const CFStringRef kTISPropertyUnicodeKeyLayoutData;
SHIM_EXTERN const CFStringRef kTISNotifySelectedKeyboardInputSourceChanged;
SHIM_EXTERN UInt8 LMGetKbdType(void);

// https://developer.apple.com/documentation/coreservices/1390584-uckeytranslate
struct UCKeyboardLayout;
typedef struct UCKeyboardLayout UCKeyboardLayout;
enum : UInt16 { kUCKeyActionDown = 0, kUCKeyActionUp = 1, kUCKeyActionAutoKey = 2, kUCKeyActionDisplay = 3 };
enum : OptionBits { kUCKeyTranslateNoDeadKeysMask = 1 };
SHIM_EXTERN OSStatus UCKeyTranslate(const UCKeyboardLayout *layout, UInt16 virtualKeyCode, UInt16 keyAction,
                                    UInt32 modifierKeyState, UInt32 keyboardType, OptionBits options,
                                    UInt32 *deadKeyState, UniCharCount maximumLength, UniCharCount *actualLength,
                                    UniChar *characters);

#pragma clang assume_nonnull end
