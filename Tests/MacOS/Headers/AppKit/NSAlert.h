#pragma once

#include <AppKit/NSApplication.h>

#pragma clang assume_nonnull begin

typedef NSInteger NSModalResponse;

// https://developer.apple.com/documentation/appkit/nsalert: main thread only.
@interface NSAlert : NSObject
@property(copy) NSString *messageText;
@property(copy) NSString *informativeText;
- (NSModalResponse)runModal;
@end

#pragma clang assume_nonnull end
