#pragma once

#include <AppKit/NSApplication.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/appkit/nsevent/eventtype
typedef NS_ENUM(NSUInteger, NSEventType) {
    NSEventTypeKeyDown = 10,
    NSEventTypeKeyUp = 11,
    NSEventTypeFlagsChanged = 12,
};

// https://developer.apple.com/documentation/appkit/nsevent/eventtypemask
typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskKeyDown = 1ULL << 10,
    NSEventMaskKeyUp = 1ULL << 11,
    NSEventMaskAny = 0xFFFFFFFFFFFFFFFFULL,
};

// https://developer.apple.com/documentation/appkit/nsevent: `eventRef` is Carbon's EventRef.
@interface NSEvent : NSObject <NSCopying>
@property(readonly) NSEventType type;
@property(readonly) unsigned short keyCode;
@property(nullable, readonly) const void *eventRef;
@end

// https://developer.apple.com/documentation/foundation/runloop/mode/eventtracking
typedef NSString *NSRunLoopMode;
SHIM_EXTERN NSRunLoopMode const NSEventTrackingRunLoopMode;

@interface NSApplication (NSEvents)
// https://developer.apple.com/documentation/appkit/nsapplication/nextevent(matching:until:inmode:dequeue:)
- (nullable NSEvent *)nextEventMatchingMask:(NSEventMask)mask
                                  untilDate:(nullable NSDate *)expiration
                                     inMode:(NSRunLoopMode)mode
                                    dequeue:(BOOL)dequeue;
- (void)run;
@end

#pragma clang assume_nonnull end
