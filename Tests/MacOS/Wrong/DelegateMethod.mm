#import <AppKit/AppKit.h>

@interface WrongDelegate : NSObject <NSApplicationDelegate>
@end

@implementation WrongDelegate
// expected-error@+1 {{conflicting return type in implementation of 'applicationShouldHandleReopen:hasVisibleWindows:'}}
- (void)applicationShouldHandleReopen:(NSApplication *)sender hasVisibleWindows:(BOOL)hasVisibleWindows
{
}
@end
