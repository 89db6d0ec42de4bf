#pragma once

#include <CoreFoundation/CoreFoundation.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/carbon/carbon_event_manager, and the bindings of the current SDK. Main
// thread only.
typedef struct OpaqueEventRef *EventRef;
typedef struct OpaqueEventTargetRef *EventTargetRef;
typedef struct OpaqueEventHandlerRef *EventHandlerRef;
typedef struct OpaqueEventHandlerCallRef *EventHandlerCallRef;
typedef struct OpaqueEventHotKeyRef *EventHotKeyRef;
typedef OSType EventParamName;
typedef OSType EventParamType;

#pragma pack(push, 2)
typedef struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
} EventTypeSpec;
typedef struct EventHotKeyID {
    OSType signature;
    UInt32 id;
} EventHotKeyID;
#pragma pack(pop)
static_assert(sizeof(EventTypeSpec) == 8);
static_assert(sizeof(EventHotKeyID) == 8);

typedef OSStatus (*EventHandlerProcPtr)(EventHandlerCallRef _Null_unspecified next, EventRef _Null_unspecified event,
                                        void *_Null_unspecified userData);
typedef EventHandlerProcPtr EventHandlerUPP;

enum : FourCharCode {
    kEventClassKeyboard = 'keyb',
    kEventParamDirectObject = '----',
    kEventParamKeyCode = 'kcod',
    kEventParamKeyModifiers = 'kmod',
    typeEventHotKeyID = 'hkid',
    typeUInt32 = 'magn',
};
enum : UInt32 {
    kEventRawKeyDown = 1,
    kEventRawKeyRepeat = 2,
    kEventRawKeyUp = 3,
    kEventHotKeyPressed = 5,
    kEventHotKeyReleased = 6,
};
enum : OptionBits { kEventHotKeyNoOptions = 0, kEventHotKeyExclusive = 1 };
enum : OSStatus {
    eventHandlerAlreadyInstalledErr = -9866,
    eventInternalErr = -9868,
    eventParameterNotFoundErr = -9870,
    eventNotHandledErr = -9874,
    eventHotKeyExistsErr = -9878,
    eventHotKeyInvalidErr = -9879,
};

SHIM_EXTERN EventTargetRef _Null_unspecified GetEventDispatcherTarget(void);
SHIM_EXTERN OSStatus InstallEventHandler(EventTargetRef _Null_unspecified target,
                                         EventHandlerUPP _Null_unspecified handler, ItemCount typeCount,
                                         const EventTypeSpec *_Null_unspecified types, void *_Null_unspecified userData,
                                         EventHandlerRef _Nullable *_Null_unspecified installed);
SHIM_EXTERN OSStatus AddEventTypesToHandler(EventHandlerRef _Null_unspecified handler, ItemCount typeCount,
                                            const EventTypeSpec *_Null_unspecified types);
SHIM_EXTERN OSStatus RemoveEventTypesFromHandler(EventHandlerRef _Null_unspecified handler, ItemCount typeCount,
                                                 const EventTypeSpec *_Null_unspecified types);
SHIM_EXTERN OSStatus RemoveEventHandler(EventHandlerRef _Null_unspecified handler);
SHIM_EXTERN OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID hotKeyID,
                                         EventTargetRef _Null_unspecified target, OptionBits options,
                                         EventHotKeyRef _Nullable *_Null_unspecified hotKey);
SHIM_EXTERN OSStatus UnregisterEventHotKey(EventHotKeyRef _Null_unspecified hotKey);
SHIM_EXTERN OSStatus GetEventParameter(EventRef _Null_unspecified event, EventParamName name, EventParamType type,
                                       EventParamType *_Nullable actualType, ByteCount size,
                                       ByteCount *_Nullable actualSize, void *_Null_unspecified data);
SHIM_EXTERN UInt32 GetEventKind(EventRef _Null_unspecified event);
SHIM_EXTERN OSType GetEventClass(EventRef _Null_unspecified event);

#pragma clang assume_nonnull end
