#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <Declarations.h>

// https://developer.apple.com/documentation/objectivec and https://developer.apple.com/documentation/foundation
typedef struct objc_selector *SEL;
typedef struct objc_class *Class;
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double NSTimeInterval;
typedef CGRect NSRect;
typedef CGSize NSSize;
typedef CGPoint NSPoint;

@class NSString;
@class NSArray<ObjectType>;
@class NSDictionary<KeyType, ObjectType>;

#pragma clang assume_nonnull begin

typedef struct _NSZone NSZone;

// https://developer.apple.com/documentation/objectivec/nsobjectprotocol
@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
@property(readonly) NSUInteger hash;
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)respondsToSelector:(SEL)aSelector;
- (instancetype)self;
- (instancetype)retain __attribute__((unavailable("not available in automatic reference counting mode")));
@end

// https://developer.apple.com/documentation/objectivec/nsobject-swift.class
__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
- (instancetype)init;
+ (instancetype)new;
- (id)copy;
+ (Class)class;
- (void)dealloc;
@end

// https://developer.apple.com/documentation/foundation/nscopying
@protocol NSCopying
- (id)copyWithZone:(nullable NSZone *)zone;
@end
@protocol NSCoding
@end
@protocol NSSecureCoding <NSCoding>
@end

// https://developer.apple.com/documentation/foundation/nsfastenumeration
typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable *_Nullable itemsPtr;
    unsigned long *_Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;
@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)length;
@end

// https://developer.apple.com/documentation/objectivec/nsobject-swift.class/value(forkey:) and …/setvalue(_:forkey:)
@interface NSObject (NSKeyValueCoding)
- (nullable id)valueForKey:(NSString *)key;
- (void)setValue:(nullable id)value forKey:(NSString *)key;
@end

// https://developer.apple.com/documentation/foundation/nskeyvalueobservingoptions
typedef NS_OPTIONS(NSUInteger, NSKeyValueObservingOptions) {
    NSKeyValueObservingOptionNew = 0x01,
    NSKeyValueObservingOptionOld = 0x02,
    NSKeyValueObservingOptionInitial = 0x04,
};
typedef NSString *NSKeyValueChangeKey;
@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString *)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary<NSKeyValueChangeKey, id> *)change
                       context:(nullable void *)context;
- (void)addObserver:(NSObject *)observer
         forKeyPath:(NSString *)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void *)context;
- (void)removeObserver:(NSObject *)observer forKeyPath:(NSString *)keyPath context:(nullable void *)context;
@end

// https://developer.apple.com/documentation/dispatch
typedef NSObject *dispatch_queue_t;
typedef void (^dispatch_block_t)(void);
SHIM_EXTERN dispatch_queue_t dispatch_get_main_queue(void);
typedef NSObject *dispatch_queue_attr_t;
#define DISPATCH_QUEUE_SERIAL nil
SHIM_EXTERN dispatch_queue_t dispatch_queue_create(const char *_Nullable label,
                                                   dispatch_queue_attr_t _Nullable attributes)
    __attribute__((ns_returns_retained));
SHIM_EXTERN void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);

#pragma clang assume_nonnull end
