#include "Platform/MacOS/MacActivationPolicy.h"

#import <AppKit/AppKit.h>

namespace vantrel {

void MacActivationPolicy::becomeRegular()
{
    [NSApplication.sharedApplication setActivationPolicy:NSApplicationActivationPolicyRegular];
}

void MacActivationPolicy::becomeAccessory()
{
    [NSApplication.sharedApplication setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

void MacActivationPolicy::activate()
{
    [NSApplication.sharedApplication activate];
}

} // namespace vantrel
