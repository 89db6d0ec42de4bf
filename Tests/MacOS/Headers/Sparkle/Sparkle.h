#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

// https://sparkle-project.org/documentation/api-reference/Classes/SPUUpdater.html
@interface SPUUpdater : NSObject
- (void)checkForUpdates;
@property(nonatomic, readonly) BOOL canCheckForUpdates;
@property(nonatomic) BOOL automaticallyChecksForUpdates;
@end

// https://sparkle-project.org/documentation/api-reference/Classes/SPUStandardUpdaterController.html
@protocol SPUUpdaterDelegate <NSObject>
@end
// https://sparkle-project.org/documentation/api-reference/Protocols/SPUStandardUserDriverDelegate.html
@protocol SPUStandardUserDriverDelegate <NSObject>
@end
@interface SPUStandardUpdaterController : NSObject
- (instancetype)initWithStartingUpdater:(BOOL)startUpdater
                        updaterDelegate:(nullable id<SPUUpdaterDelegate>)updaterDelegate
                     userDriverDelegate:(nullable id<SPUStandardUserDriverDelegate>)userDriverDelegate;
@property(nonatomic, readonly) SPUUpdater *updater;
@end

#pragma clang assume_nonnull end
