#include "Platform/MacOS/MacAutomationPermission.h"

#include <QCoroFuture>

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

namespace vantrel {
namespace {

static_assert(AutomationPermission::granted == noErr && AutomationPermission::denied == errAEEventNotPermitted);

std::optional<int> permission(const QString &bundleID)
{
    // The address lies within it.
    __attribute__((objc_precise_lifetime)) NSAppleEventDescriptor *target =
        [NSAppleEventDescriptor descriptorWithBundleIdentifier:bundleID.toNSString()];
    const AEDesc *address = target.aeDesc;
    if (!address)
        return std::nullopt;
    constexpr Boolean asksUser = 1;
    return AEDeterminePermissionToAutomateTarget(address, typeWildCard, typeWildCard, asksUser);
}

} // namespace

QCoro::Task<std::optional<int>> MacAutomationPermission::request(QString bundleID)
{
    const auto answer = queue_.run<std::optional<int>>([bundleID] { return permission(bundleID); });
    co_return co_await answer.future();
}

} // namespace vantrel
