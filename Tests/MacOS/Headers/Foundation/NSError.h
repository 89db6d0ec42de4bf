#pragma once

#include <Foundation/NSObject.h>
#include <Foundation/NSString.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/foundation/nserror
typedef NSString *NSErrorDomain;
@interface NSError : NSObject <NSCopying, NSSecureCoding>
@property(readonly, copy) NSErrorDomain domain;
@property(readonly) NSInteger code;
@property(readonly, copy) NSString *localizedDescription;
@end

// https://developer.apple.com/documentation/foundation/nsexception
@interface NSException : NSObject <NSCopying, NSSecureCoding>
@property(readonly, copy) NSString *name;
@property(nullable, readonly, copy) NSString *reason;
@end

#pragma clang assume_nonnull end
