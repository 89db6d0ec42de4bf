#pragma once

#include <Foundation/NSCollections.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/foundation/operationqueue
@interface NSOperationQueue : NSObject
@property(class, readonly, strong) NSOperationQueue *mainQueue;
@end

// https://developer.apple.com/documentation/foundation/thread
@interface NSThread : NSObject
@property(class, readonly) BOOL isMainThread;
@end

// https://developer.apple.com/documentation/foundation/nsnotification
typedef NSString *NSNotificationName;
@interface NSNotification : NSObject <NSCopying, NSCoding>
@property(readonly, copy) NSNotificationName name;
@property(nullable, readonly, retain) id object;
@property(nullable, readonly, copy) NSDictionary *userInfo;
@end

// https://developer.apple.com/documentation/foundation/notificationcenter
@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter *defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)aSelector
               name:(nullable NSNotificationName)aName
             object:(nullable id)anObject;
- (void)removeObserver:(id)observer;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)object
                             queue:(nullable NSOperationQueue *)queue
                        usingBlock:(void (^)(NSNotification *notification))block;
@end

// https://developer.apple.com/documentation/foundation/distributednotificationcenter
@interface NSDistributedNotificationCenter : NSNotificationCenter
+ (NSDistributedNotificationCenter *)defaultCenter;
@end

#pragma clang assume_nonnull end
