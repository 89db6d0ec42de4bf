#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/oslog/oslogentry and its kinds: what was logged with a format, put
// together.
@interface OSLogEntry : NSObject <NSSecureCoding>
@property(nonatomic, readonly) NSString *composedMessage;
@property(nonatomic, readonly) NSDate *date;
@end
@protocol OSLogEntryWithPayload
@property(nonatomic, readonly) NSString *category;
@property(nonatomic, readonly) NSString *subsystem;
@end
@interface OSLogEntryLog : OSLogEntry <OSLogEntryWithPayload>
@end

// https://developer.apple.com/documentation/oslog/oslogstore: of its own process, a program may read all.
typedef NS_ENUM(NSInteger, OSLogStoreScope) {
    OSLogStoreSystem = 0,
    OSLogStoreCurrentProcessIdentifier = 1,
};
typedef NS_OPTIONS(NSUInteger, OSLogEnumeratorOptions) {
    OSLogEnumeratorReverse = 0x01,
};
@class OSLogPosition;
@class NSPredicate;
@interface OSLogEnumerator : NSObject <NSFastEnumeration>
@end
@interface OSLogStore : NSObject
+ (nullable instancetype)storeWithScope:(OSLogStoreScope)scope error:(NSError *_Nullable *_Nullable)error;
- (nullable OSLogEnumerator *)entriesEnumeratorWithOptions:(OSLogEnumeratorOptions)options
                                                  position:(nullable OSLogPosition *)position
                                                 predicate:(nullable NSPredicate *)predicate
                                                     error:(NSError *_Nullable *_Nullable)error;
@end

#pragma clang assume_nonnull end
