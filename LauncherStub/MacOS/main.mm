#import <AppKit/AppKit.h>

#include <string>
#include <vector>

#include "LauncherStub/LinkWithAddresses.h"

/// Hands the launcher's link to the app, with what was dropped on the launcher, and ends.
@interface LauncherDelegate : NSObject <NSApplicationDelegate>
@end

namespace {

std::string textOf(NSString *text)
{
    return text.UTF8String == nullptr ? std::string() : std::string(text.UTF8String);
}

/// As the app wrote it into this launcher's property list; empty when it didn't.
std::string ownLink()
{
    const id link = [NSBundle.mainBundle objectForInfoDictionaryKey:@"VantrelLink"];
    return [link isKindOfClass:NSString.class] ? textOf(link) : std::string();
}

bool openLink(const std::vector<std::string> &addresses)
{
    const std::string text = vantrel::launcher_stub::linkWithAddresses(ownLink(), addresses);
    NSString *const link = [NSString stringWithUTF8String:text.c_str()];
    NSURL *const url = link.length == 0 ? nil : [NSURL URLWithString:link];
    return url != nil && [NSWorkspace.sharedWorkspace openURL:url];
}

void tellFailure()
{
    NSAlert *const alert = [[NSAlert alloc] init];
    alert.messageText = @"This launcher can’t open its profile.";
    alert.informativeText = @"Vantrel, which opens it, was not found on this Mac. Download it from "
                            @"https://kestrune.app/vantrel, or make the launcher again.";
    [NSApp activate];
    [alert runModal];
}

} // namespace

@implementation LauncherDelegate {
    std::vector<std::string> _addresses;
    bool _isLaunched;
}

/// Links and pages alike, also those that the launcher was started with. They come before it has finished launching.
- (void)application:(NSApplication *)application openURLs:(NSArray<NSURL *> *)urls
{
    for (NSURL *url in urls)
        _addresses.push_back(textOf(url.absoluteString));
    if (_isLaunched)
        [self openAndEnd:application];
}

- (void)applicationDidFinishLaunching:(NSNotification *)notification
{
    _isLaunched = true;
    [self openAndEnd:notification.object];
}

- (void)openAndEnd:(NSApplication *)application
{
    if (!openLink(_addresses))
        tellFailure();
    _addresses.clear();
    [application terminate:nil];
}

@end

int main()
{
    @autoreleasepool {
        // Static: the application doesn't keep it alive, and a local one may be gone after its last use.
        static LauncherDelegate *const delegate = [[LauncherDelegate alloc] init];
        NSApplication.sharedApplication.delegate = delegate;
        [NSApp run];
    }
    return 0;
}
