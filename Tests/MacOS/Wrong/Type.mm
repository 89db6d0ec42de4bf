#import <AppKit/AppKit.h>

void wrong(NSSavePanel *panel, NSArray<NSString *> *texts)
{
    // expected-error@+1 {{incompatible pointer types assigning to 'NSString * _Nullable' from 'NSURL * _Nonnull'}}
    panel.message = [NSURL fileURLWithPath:@"/"];
    // expected-error@+1 {{cannot initialize a variable of type 'NSArray<NSURL *> *__strong'}}
    NSArray<NSURL *> *urls = texts;
    (void)urls;
    // expected-error@+1 {{cannot initialize a parameter of type}}
    [[NSUserDefaults standardUserDefaults] setBool:@"yes" forKey:@"key"];
}
