#import <AppKit/AppKit.h>

void wrong(NSWorkspace *workspace, id anything)
{
    // expected-error@+1 {{declares the selector 'urlForApplicationWithBundleIdentifier:'}}
    [workspace urlForApplicationWithBundleIdentifier:@"a"];
    // expected-error@+1 {{no known instance method for selector 'openEverything'}}
    [anything openEverything];
    // expected-error@+1 {{property 'shared' not found on object of type 'NSWorkspace *'}}
    [workspace.shared openURL:[NSURL fileURLWithPath:@"/"]];
    // expected-error@+1 {{undeclared selector 'neverDeclared:'}}
    [workspace respondsToSelector:@selector(neverDeclared:)];
}
