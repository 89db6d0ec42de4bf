// expected-no-diagnostics
#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>

NSArray<NSString *> *namesOf(NSArray<NSURL *> *urls)
{
    NSMutableArray<NSString *> *names = [NSMutableArray arrayWithCapacity:urls.count];
    for (NSURL *url in urls) {
        if (NSString *path = url.path)
            [names addObject:path.lastPathComponent];
    }
    return names;
}

BOOL isTrusted()
{
    NSDictionary *options = @{(__bridge NSString *)kAXTrustedCheckOptionPrompt : @YES};
    return AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options) ? YES : NO;
}

NSPasteboardAccessBehavior access()
{
    if (@available(macOS 15.4, *))
        return NSPasteboard.generalPasteboard.accessBehavior;
    return NSPasteboardAccessBehaviorDefault;
}
