#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

// https://developer.apple.com/documentation/uniformtypeidentifiers/uttype-swift.struct
@interface UTType : NSObject <NSCopying, NSSecureCoding>
+ (nullable instancetype)typeWithIdentifier:(NSString *)identifier;
@end
SHIM_EXTERN UTType *const UTTypeApplicationBundle;

#pragma clang assume_nonnull end
