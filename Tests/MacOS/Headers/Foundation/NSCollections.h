#pragma once

#include <Foundation/NSObject.h>
#include <Foundation/NSString.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/foundation/nsarray
@interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSSecureCoding, NSFastEnumeration>
+ (instancetype)array;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nullable])objects count:(NSUInteger)count;
@property(readonly) NSUInteger count;
@property(nullable, readonly) ObjectType firstObject;
@property(nullable, readonly) ObjectType lastObject;
- (ObjectType)objectAtIndex:(NSUInteger)index;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)index;
- (BOOL)containsObject:(ObjectType)object;
@end

// https://developer.apple.com/documentation/foundation/nsmutablearray
@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
+ (instancetype)arrayWithCapacity:(NSUInteger)count;
- (void)addObject:(ObjectType)object;
@end

// https://developer.apple.com/documentation/foundation/nsdictionary
@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSSecureCoding, NSFastEnumeration>
+ (instancetype)dictionaryWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                              forKeys:(const KeyType<NSCopying> _Nonnull[_Nullable])keys
                                count:(NSUInteger)count;
@property(readonly) NSUInteger count;
- (nullable ObjectType)objectForKey:(KeyType)key;
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)key;
@end

#pragma clang assume_nonnull end
