#include "Platform/MacOS/MacUserDefaults.h"

#import <Foundation/Foundation.h>

namespace vantrel {
namespace {

bool isTruthValue(NSNumber *number)
{
    return CFGetTypeID((__bridge CFTypeRef)number) == CFBooleanGetTypeID();
}

QVariant variant(id object)
{
    if ([object isKindOfClass:[NSString class]])
        return QString::fromNSString(object);
    if (![object isKindOfClass:[NSNumber class]])
        return {};
    // What somebody else wrote as a number is read as its text.
    NSNumber *number = object;
    return isTruthValue(number) ? QVariant(number.boolValue == YES)
                                : QVariant(QString::fromNSString(number.stringValue));
}

} // namespace

struct MacUserDefaults::Native {
    NSUserDefaults *defaults = nil;
};

MacUserDefaults::MacUserDefaults(const QString &suite)
    : native_(new Native{suite.isEmpty() ? NSUserDefaults.standardUserDefaults
                                         : [[NSUserDefaults alloc] initWithSuiteName:suite.toNSString()]})
{
}

MacUserDefaults::~MacUserDefaults() = default;

QVariant MacUserDefaults::value(const QString &key) const
{
    @autoreleasepool {
        return variant([native_->defaults objectForKey:key.toNSString()]);
    }
}

void MacUserDefaults::setValue(const QString &key, const QVariant &value)
{
    @autoreleasepool {
        if (value.typeId() == QMetaType::Bool)
            [native_->defaults setBool:value.toBool() forKey:key.toNSString()];
        else
            [native_->defaults setObject:value.toString().toNSString() forKey:key.toNSString()];
    }
}

void MacUserDefaults::remove(const QString &key)
{
    @autoreleasepool {
        [native_->defaults removeObjectForKey:key.toNSString()];
    }
}

} // namespace vantrel
