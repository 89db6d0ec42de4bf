#import <AppKit/AppKit.h>

void wrong(NSWorkspace *workspace)
{
    NSURL *_Nullable found = [workspace URLForApplicationWithBundleIdentifier:@"a"];
    // expected-error@+1 {{implicit conversion from nullable pointer}}
    [workspace openURL:found];
    // expected-error@+1 {{null passed to a callee that requires a non-null argument}}
    [workspace openURL:nil];
}
