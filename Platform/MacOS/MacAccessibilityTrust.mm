#include "Platform/MacOS/MacAccessibilityTrust.h"

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

namespace vantrel {

bool MacAccessibilityTrust::isTrusted() const
{
    return AXIsProcessTrusted() != 0;
}

bool MacAccessibilityTrust::isTrustedElseAsk()
{
    @autoreleasepool {
        NSDictionary *options = @{(__bridge NSString *)kAXTrustedCheckOptionPrompt : @YES};
        return AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options) != 0;
    }
}

} // namespace vantrel
