#pragma once

#include <Foundation/NSCollections.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/foundation/userdefaults: thread safe.
@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults *standardUserDefaults;
- (nullable instancetype)initWithSuiteName:(nullable NSString *)suiteName;
- (nullable id)objectForKey:(NSString *)defaultName;
- (nullable NSString *)stringForKey:(NSString *)defaultName;
- (BOOL)boolForKey:(NSString *)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString *)defaultName;
- (void)setBool:(BOOL)value forKey:(NSString *)defaultName;
- (void)removeObjectForKey:(NSString *)defaultName;
- (void)removePersistentDomainForName:(NSString *)domainName;
@end

#pragma clang assume_nonnull end
