#pragma once

#include <AppKit/NSApplication.h>

#pragma clang assume_nonnull begin

@class UTType;

// https://developer.apple.com/documentation/appkit/nssavepanel: main thread only, the handler's too. The system may
// answer no panel.
typedef NSInteger NSModalResponse;
enum : NSModalResponse { NSModalResponseCancel = 0, NSModalResponseOK = 1 };
@interface NSWindow : NSResponder
@property(readonly, getter=isVisible) BOOL visible;
- (void)close;
@end
@interface NSPanel : NSWindow
@end
@interface NSSavePanel : NSPanel
+ (nullable NSSavePanel *)savePanel;
@property(nullable, readonly, copy) NSURL *URL;
@property(nullable, copy) NSURL *directoryURL;
@property(null_resettable, copy) NSString *message;
@property(null_resettable, copy) NSString *prompt;
@property(null_resettable, copy) NSString *title;
@property(copy) NSString *nameFieldStringValue;
@property(copy) NSArray<UTType *> *allowedContentTypes;
@property BOOL canCreateDirectories;
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse result))handler;
- (void)cancel:(nullable id)sender;
@end

// https://developer.apple.com/documentation/appkit/nsopenpanel
@interface NSOpenPanel : NSSavePanel
+ (nullable NSOpenPanel *)openPanel;
@property(readonly, copy) NSArray<NSURL *> *URLs;
@property BOOL canChooseFiles;
@property BOOL canChooseDirectories;
@property BOOL allowsMultipleSelection;
@end

#pragma clang assume_nonnull end
