#pragma once

#include <Declarations.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/corefoundation
typedef long CFIndex;
typedef unsigned long CFOptionFlags;
typedef unsigned long CFTypeID;
typedef double CFTimeInterval;
typedef const void *CFTypeRef;
typedef const struct __CFAllocator *CFAllocatorRef;
typedef const struct SHIM_BRIDGED(NSString) __CFString *CFStringRef;
typedef const struct SHIM_BRIDGED(NSArray) __CFArray *CFArrayRef;
typedef const struct SHIM_BRIDGED(NSDictionary) __CFDictionary *CFDictionaryRef;
typedef const struct SHIM_BRIDGED(NSData) __CFData *CFDataRef;
typedef const struct SHIM_BRIDGED(NSDate) __CFDate *CFDateRef;
typedef const struct SHIM_BRIDGED(NSURL) __CFURL *CFURLRef;
typedef const struct SHIM_BRIDGED(NSNumber) __CFNumber *CFNumberRef;
typedef const struct SHIM_BRIDGED(NSNumber) __CFBoolean *CFBooleanRef;
typedef struct SHIM_BRIDGED(NSError) __CFError *CFErrorRef;

// https://developer.apple.com/documentation/corefoundation/cfrelease(_:)
SHIM_EXTERN CFTypeRef CFRetain(CFTypeRef object);
SHIM_EXTERN void CFRelease(CFTypeRef object);
SHIM_EXTERN CFTypeID CFGetTypeID(CFTypeRef object);
SHIM_EXTERN Boolean CFEqual(CFTypeRef one, CFTypeRef other);
SHIM_EXTERN const CFAllocatorRef _Nullable kCFAllocatorDefault;

// https://developer.apple.com/documentation/corefoundation/cfboolean
SHIM_EXTERN const CFBooleanRef kCFBooleanTrue;
SHIM_EXTERN const CFBooleanRef kCFBooleanFalse;
SHIM_EXTERN CFTypeID CFBooleanGetTypeID(void);
SHIM_EXTERN Boolean CFBooleanGetValue(CFBooleanRef boolean);

// https://developer.apple.com/documentation/corefoundation/cfnumber
typedef CFIndex CFNumberType;
enum : CFNumberType { kCFNumberSInt32Type = 3, kCFNumberSInt64Type = 4, kCFNumberIntType = 9 };
SHIM_EXTERN Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value);

// https://developer.apple.com/documentation/corefoundation/cfdata
SHIM_EXTERN const UInt8 *_Nullable CFDataGetBytePtr(CFDataRef data);
SHIM_EXTERN CFIndex CFDataGetLength(CFDataRef data);

// https://developer.apple.com/documentation/corefoundation/cfarray and …/cfdictionary
SHIM_EXTERN CFIndex CFArrayGetCount(CFArrayRef array);
SHIM_EXTERN const void *_Null_unspecified CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);
SHIM_EXTERN const void *_Nullable CFDictionaryGetValue(CFDictionaryRef dictionary, const void *_Nullable key);
SHIM_EXTERN CFDataRef _Nullable CFDataCreate(CFAllocatorRef _Nullable allocator, const UInt8 *_Nullable bytes,
                                             CFIndex length);

// https://developer.apple.com/documentation/corefoundation/cfrunloop
typedef struct __CFRunLoop *CFRunLoopRef;
typedef struct __CFRunLoopSource *CFRunLoopSourceRef;
typedef struct __CFRunLoopObserver *CFRunLoopObserverRef;
typedef CFStringRef CFRunLoopMode;
typedef CF_OPTIONS(CFOptionFlags, CFRunLoopActivity) {
    kCFRunLoopEntry = 1 << 0,
    kCFRunLoopBeforeTimers = 1 << 1,
    kCFRunLoopBeforeSources = 1 << 2,
    kCFRunLoopBeforeWaiting = 1 << 5,
    kCFRunLoopAfterWaiting = 1 << 6,
    kCFRunLoopExit = 1 << 7,
    kCFRunLoopAllActivities = 0x0FFFFFFF,
};
SHIM_EXTERN const CFRunLoopMode kCFRunLoopDefaultMode;
SHIM_EXTERN const CFRunLoopMode kCFRunLoopCommonModes;
SHIM_EXTERN CFRunLoopRef CFRunLoopGetMain(void);
SHIM_EXTERN void CFRunLoopAddSource(CFRunLoopRef _Null_unspecified loop, CFRunLoopSourceRef _Null_unspecified source,
                                    CFRunLoopMode _Null_unspecified mode);
SHIM_EXTERN CFRunLoopObserverRef _Nullable CFRunLoopObserverCreateWithHandler(
    CFAllocatorRef _Nullable allocator, CFOptionFlags activities, Boolean repeats, CFIndex order,
    void (^block)(CFRunLoopObserverRef observer, CFRunLoopActivity activity));
SHIM_EXTERN void CFRunLoopAddObserver(CFRunLoopRef loop, CFRunLoopObserverRef observer, CFRunLoopMode mode);
SHIM_EXTERN void CFRunLoopObserverInvalidate(CFRunLoopObserverRef observer);

// https://developer.apple.com/documentation/corefoundation/cfmessageport: what the callback answers is released by its
// caller; a port's name is taken until the process ends or invalidates it.
typedef struct __CFMessagePort *CFMessagePortRef;
typedef struct {
    CFIndex version;
    void *_Nullable info;
    const void *_Nullable (*_Nullable retain)(const void *_Nullable info);
    void (*_Nullable release)(const void *_Nullable info);
    CFStringRef _Nullable (*_Nullable copyDescription)(const void *_Nullable info);
} CFMessagePortContext;
typedef CFDataRef _Nullable (*CFMessagePortCallBack)(CFMessagePortRef _Null_unspecified local, SInt32 message,
                                                     CFDataRef _Null_unspecified data, void *_Null_unspecified info);
enum : SInt32 {
    kCFMessagePortSuccess = 0,
    kCFMessagePortSendTimeout = -1,
    kCFMessagePortReceiveTimeout = -2,
    kCFMessagePortIsInvalid = -3,
    kCFMessagePortTransportError = -4,
    kCFMessagePortBecameInvalidError = -5,
};
SHIM_EXTERN CFMessagePortRef _Nullable CFMessagePortCreateLocal(CFAllocatorRef _Nullable allocator,
                                                                CFStringRef _Nullable name,
                                                                CFMessagePortCallBack callback,
                                                                CFMessagePortContext *_Nullable context,
                                                                Boolean *_Nullable shouldFreeInfo);
SHIM_EXTERN CFMessagePortRef _Nullable CFMessagePortCreateRemote(CFAllocatorRef _Nullable allocator, CFStringRef name);
SHIM_EXTERN SInt32 CFMessagePortSendRequest(CFMessagePortRef remote, SInt32 message, CFDataRef _Nullable data,
                                            CFTimeInterval sendTimeout, CFTimeInterval receiveTimeout,
                                            CFStringRef _Nullable replyMode, CFDataRef _Nullable *_Nullable returnData);
SHIM_EXTERN CFRunLoopSourceRef _Nullable CFMessagePortCreateRunLoopSource(CFAllocatorRef _Nullable allocator,
                                                                          CFMessagePortRef local, CFIndex order);
SHIM_EXTERN void CFMessagePortInvalidate(CFMessagePortRef port);

#pragma clang assume_nonnull end
