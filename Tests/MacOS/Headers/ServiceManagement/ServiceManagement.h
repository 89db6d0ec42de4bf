#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/servicemanagement/smappservice
typedef NS_ENUM(NSInteger, SMAppServiceStatus) {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3,
};
// https://developer.apple.com/documentation/servicemanagement/smerrors
enum {
    kSMErrorJobNotFound = 6,
    kSMErrorLaunchDeniedByUser = 11,
    kSMErrorAlreadyRegistered = 12,
};
@interface SMAppService : NSObject
@property(class, readonly) SMAppService *mainAppService;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError *_Nullable *_Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError *_Nullable *_Nullable)error;
+ (void)openSystemSettingsLoginItems;
@end

#pragma clang assume_nonnull end
