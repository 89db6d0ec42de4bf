#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class SBElementArray<ObjectType>;

// https://developer.apple.com/documentation/scriptingbridge/sbobject
@interface SBObject : NSObject <NSCoding>
- (instancetype)initWithProperties:(NSDictionary *)properties;
- (nullable id)get;
- (nullable NSError *)lastError;
@end

// https://developer.apple.com/documentation/scriptingbridge/sbelementarray
@interface SBElementArray<ObjectType> : NSMutableArray <ObjectType>
- (nullable ObjectType)objectWithID:(id)identifier;
- (NSArray *)arrayByApplyingSelector:(SEL)selector;
- (nullable NSArray<ObjectType> *)get;
@end

// https://developer.apple.com/documentation/scriptingbridge/sbapplicationdelegate
@protocol SBApplicationDelegate
- (nullable id)eventDidFail:(const AppleEvent *)event withError:(NSError *)error;
@end

// https://developer.apple.com/documentation/scriptingbridge/sbapplication
@interface SBApplication : SBObject <NSCoding>
- (nullable instancetype)initWithBundleIdentifier:(NSString *)identifier;
- (nullable Class)classForScriptingClass:(NSString *)className;
@property(readonly, getter=isRunning) BOOL running;
- (void)activate;
@property(nullable, strong) id<SBApplicationDelegate> delegate;
@property long timeout;
@property AESendMode sendMode;
@end

#pragma clang assume_nonnull end
