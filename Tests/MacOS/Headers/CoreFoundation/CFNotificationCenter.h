#pragma once

#include <CoreFoundation/CoreFoundation.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/corefoundation/cfrunloopobservercontext
typedef struct {
    CFIndex version;
    void *_Nullable info;
    const void *_Nullable (*_Nullable retain)(const void *_Nullable info);
    void (*_Nullable release)(const void *_Nullable info);
    CFStringRef _Nullable (*_Nullable copyDescription)(const void *_Nullable info);
} CFRunLoopObserverContext;
typedef void (*CFRunLoopObserverCallBack)(CFRunLoopObserverRef _Null_unspecified observer, CFRunLoopActivity activity,
                                          void *_Null_unspecified info);
// https://developer.apple.com/documentation/corefoundation/cfrunloopobservercreate(_:_:_:_:_:_:)
SHIM_EXTERN CFRunLoopObserverRef CFRunLoopObserverCreate(CFAllocatorRef _Nullable allocator, CFOptionFlags activities,
                                                         Boolean repeats, CFIndex order,
                                                         CFRunLoopObserverCallBack callout,
                                                         CFRunLoopObserverContext *_Nullable context);
// https://developer.apple.com/documentation/corefoundation/cfrunlooprun()
SHIM_EXTERN void CFRunLoopRun(void);

// https://developer.apple.com/documentation/corefoundation/cfnotificationcenter: those of the distributed centre come
// on the main thread.
typedef struct __CFNotificationCenter *CFNotificationCenterRef;
typedef CFStringRef CFNotificationName;
typedef void (*CFNotificationCallback)(CFNotificationCenterRef _Null_unspecified center,
                                       void *_Null_unspecified observer, CFNotificationName _Null_unspecified name,
                                       const void *_Null_unspecified object,
                                       CFDictionaryRef _Null_unspecified userInfo);
typedef CF_ENUM(CFIndex, CFNotificationSuspensionBehavior) {
    CFNotificationSuspensionBehaviorDrop = 1,
    CFNotificationSuspensionBehaviorCoalesce = 2,
    CFNotificationSuspensionBehaviorHold = 3,
    CFNotificationSuspensionBehaviorDeliverImmediately = 4,
};
SHIM_EXTERN CFNotificationCenterRef CFNotificationCenterGetDistributedCenter(void);
SHIM_EXTERN void CFNotificationCenterAddObserver(CFNotificationCenterRef _Null_unspecified center,
                                                 const void *_Null_unspecified observer,
                                                 CFNotificationCallback _Null_unspecified callBack,
                                                 CFStringRef _Null_unspecified name,
                                                 const void *_Null_unspecified object,
                                                 CFNotificationSuspensionBehavior suspensionBehavior);
SHIM_EXTERN void CFNotificationCenterRemoveEveryObserver(CFNotificationCenterRef _Null_unspecified center,
                                                         const void *_Null_unspecified observer);

#pragma clang assume_nonnull end
