#include "Platform/MacOS/ServiceLoginItem.h"

#include "Platform/ServiceRegistration.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

namespace vantrel {
namespace {

using Wish = ServiceRegistration::Wish;
using Status = ServiceRegistration::Status;
using Refusal = ServiceRegistration::Refusal;

static_assert(Refusal::jobNotFound == kSMErrorJobNotFound && Refusal::alreadyRegistered == kSMErrorAlreadyRegistered);

Status statusOf(SMAppService *service)
{
    switch (service.status) {
    case SMAppServiceStatusNotRegistered: return Status::notRegistered;
    case SMAppServiceStatusEnabled: return Status::enabled;
    case SMAppServiceStatusRequiresApproval: return Status::requiresApproval;
    case SMAppServiceStatusNotFound: return Status::notFound;
    }
    // A later system may have others.
    return Status::notFound;
}

} // namespace

bool ServiceLoginItem::isEnabled() const
{
    @autoreleasepool {
        return statusOf(SMAppService.mainAppService) == Status::enabled;
    }
}

std::expected<void, PlatformError> ServiceLoginItem::setEnabled(bool isEnabled)
{
    @autoreleasepool {
        SMAppService *service = SMAppService.mainAppService;
        NSError *error = nil;
        const BOOL isDone =
            isEnabled ? [service registerAndReturnError:&error] : [service unregisterAndReturnError:&error];
        ServiceRegistration registration{.wish = isEnabled ? Wish::on : Wish::off};
        if (!isDone) {
            registration.refusal =
                Refusal{.code = error.code, .message = QString::fromNSString(error.localizedDescription)};
        }
        registration.status = statusOf(service);
        return registration.result();
    }
}

} // namespace vantrel
