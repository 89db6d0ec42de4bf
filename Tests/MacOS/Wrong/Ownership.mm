#import <Foundation/Foundation.h>

@interface Wrong : NSObject
@end

@implementation Wrong
- (void)dealloc
{
    // expected-error@+1 {{ARC forbids explicit message send of 'dealloc'}}
    [super dealloc];
}
- (id)keep:(NSString *)text
{
    // expected-error@+2 {{ARC forbids explicit message send of 'retain'}}
    // expected-error@+1 {{'retain' is unavailable}}
    return [text retain];
}
@end
