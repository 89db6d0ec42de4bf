#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSImage;

// https://developer.apple.com/documentation/appkit/nsrunningapplication: thread safe, but what varies is up to date
// only as often as the main run loop turns.
@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication *> *)runningApplicationsWithBundleIdentifier:(NSString *)bundleIdentifier;
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(pid_t)processIdentifier;
@property(class, readonly, strong) NSRunningApplication *currentApplication;
@property(readonly, getter=isTerminated) BOOL terminated;
@property(readonly, getter=isFinishedLaunching) BOOL finishedLaunching;
@property(nullable, readonly, copy) NSString *bundleIdentifier;
@property(nullable, readonly, copy) NSURL *bundleURL;
@property(readonly) pid_t processIdentifier;
- (BOOL)terminate;
- (BOOL)forceTerminate;
@end

// https://developer.apple.com/documentation/appkit/nsworkspace/openconfiguration
@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
+ (instancetype)configuration;
@property BOOL promptsUserIfNeeded;
@property BOOL addsToRecentItems;
@property BOOL activates;
@property BOOL hides;
@property BOOL createsNewApplicationInstance;
@property(copy) NSArray<NSString *> *arguments;
@property(copy) NSDictionary<NSString *, NSString *> *environment;
@end

// https://developer.apple.com/documentation/appkit/nsworkspace: completion handlers are called on a concurrent queue,
// not on the main thread.
@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace *sharedWorkspace;
@property(readonly, strong) NSNotificationCenter *notificationCenter;
- (nullable NSURL *)URLForApplicationWithBundleIdentifier:(NSString *)bundleIdentifier;
- (void)openApplicationAtURL:(NSURL *)applicationURL
               configuration:(NSWorkspaceOpenConfiguration *)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication *_Nullable application,
                                                NSError *_Nullable error))completionHandler;
- (void)openURLs:(NSArray<NSURL *> *)urls
    withApplicationAtURL:(NSURL *)applicationURL
           configuration:(NSWorkspaceOpenConfiguration *)configuration
       completionHandler:
           (void (^_Nullable)(NSRunningApplication *_Nullable application, NSError *_Nullable error))completionHandler;
- (BOOL)openURL:(NSURL *)url;
- (NSImage *)iconForFile:(NSString *)fullPath;
@property(readonly, copy) NSArray<NSRunningApplication *> *runningApplications;
@end
SHIM_EXTERN NSNotificationName const NSWorkspaceDidLaunchApplicationNotification;
SHIM_EXTERN NSNotificationName const NSWorkspaceDidTerminateApplicationNotification;
SHIM_EXTERN NSString *const NSWorkspaceApplicationKey;

#pragma clang assume_nonnull end
