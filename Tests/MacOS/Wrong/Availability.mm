#import <AppKit/AppKit.h>

NSPasteboardAccessBehavior wrong()
{
    // expected-error@+1 {{'accessBehavior' is only available on macOS 15.4 or newer}}
    return NSPasteboard.generalPasteboard.accessBehavior;
}
