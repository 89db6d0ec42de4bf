#include "Platform/MacOS/ServiceLoginItem.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

namespace vantrel {

bool ServiceLoginItem::isEnabled() const
{
    @autoreleasepool {
        return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
    }
}

std::expected<void, PlatformError> ServiceLoginItem::setEnabled(bool isEnabled)
{
    @autoreleasepool {
        SMAppService *service = SMAppService.mainAppService;
        NSError *error = nil;
        const BOOL isDone =
            isEnabled ? [service registerAndReturnError:&error] : [service unregisterAndReturnError:&error];
        if (isDone)
            return {};
        return std::unexpected(PlatformError{QString::fromNSString(error.localizedDescription)});
    }
}

} // namespace vantrel
