#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSApplication;
@class NSRunningApplication;
@class NSWindow;

// https://developer.apple.com/documentation/appkit/nsapplicationdelegate
@protocol NSApplicationDelegate <NSObject>
@optional
- (BOOL)applicationShouldHandleReopen:(NSApplication *)sender hasVisibleWindows:(BOOL)hasVisibleWindows;
- (void)application:(NSApplication *)application openURLs:(NSArray<NSURL *> *)urls;
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication *)application;
@end

// https://developer.apple.com/documentation/appkit/nsapplication: main thread only; the delegate is weak.
typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};
@interface NSResponder : NSObject
@end
@interface NSApplication : NSResponder
@property(class, readonly, strong) NSApplication *sharedApplication;
@property(nullable, weak) id<NSApplicationDelegate> delegate;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (NSApplicationActivationPolicy)activationPolicy;
- (void)activate;
- (void)yieldActivationToApplication:(NSRunningApplication *)application;
- (void)run;
- (void)terminate:(nullable id)sender;
@property(readonly, getter=isActive) BOOL active;
@property(readonly, copy) NSArray<__kindof NSWindow *> *windows;
@end
SHIM_EXTERN __kindof NSApplication *_Null_unspecified NSApp;
SHIM_EXTERN NSNotificationName const NSApplicationDidBecomeActiveNotification;
SHIM_EXTERN NSNotificationName const NSApplicationWillFinishLaunchingNotification;
SHIM_EXTERN NSNotificationName const NSApplicationDidFinishLaunchingNotification;

// https://developer.apple.com/documentation/appkit/nspasteboard/accessbehavior-swift.enum
typedef NS_ENUM(NSInteger, NSPasteboardAccessBehavior) {
    NSPasteboardAccessBehaviorDefault,
    NSPasteboardAccessBehaviorAsk,
    NSPasteboardAccessBehaviorAlwaysAllow,
    NSPasteboardAccessBehaviorAlwaysDeny,
};
// https://developer.apple.com/documentation/appkit/nspasteboard
@interface NSPasteboard : NSObject
@property(class, readonly, strong) NSPasteboard *generalPasteboard;
@property(readonly) NSPasteboardAccessBehavior accessBehavior API_AVAILABLE(macos(15.4));
@end

#pragma clang assume_nonnull end
