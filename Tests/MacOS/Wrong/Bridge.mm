#import <ApplicationServices/ApplicationServices.h>

void wrong(NSDictionary *options, NSString *text)
{
    // expected-error@+1 {{no matching function for call to 'AXIsProcessTrustedWithOptions'}}
    AXIsProcessTrustedWithOptions(options);
    // expected-error@+1 {{'NSString' cannot bridge to 'CFDictionaryRef'}}
    AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)text);
}
