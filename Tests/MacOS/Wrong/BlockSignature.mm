#import <AppKit/AppKit.h>

void wrong(NSSavePanel *panel)
{
    // expected-error@+1 {{cannot initialize a parameter of type 'void (^ _Nonnull)(NSModalResponse)'}}
    [panel beginWithCompletionHandler:^(NSString *){
    }];
}
