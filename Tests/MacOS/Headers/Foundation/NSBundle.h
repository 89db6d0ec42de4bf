#pragma once

#include <Foundation/NSCollections.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/foundation/bundle
@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle *mainBundle;
+ (nullable instancetype)bundleWithURL:(NSURL *)url;
- (nullable id)objectForInfoDictionaryKey:(NSString *)key;
@property(nullable, readonly, copy) NSDictionary<NSString *, id> *infoDictionary;
- (nullable NSURL *)URLForResource:(nullable NSString *)name withExtension:(nullable NSString *)extension;
- (nullable NSURL *)URLForAuxiliaryExecutable:(NSString *)executableName;
@property(nullable, readonly, copy) NSString *bundleIdentifier;
@property(readonly, copy) NSURL *bundleURL;
@property(nullable, readonly, copy) NSURL *executableURL;
@end

// https://developer.apple.com/documentation/foundation/processinfo
@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo *processInfo;
@property(readonly) int processIdentifier;
@end

#pragma clang assume_nonnull end
