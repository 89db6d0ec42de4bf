#include "Platform/MacOS/MacApplicationInstance.h"

#include "Platform/InstanceMessage.h"

namespace vantrel {
namespace {

/// Another process may be faster to take the name, and is asked then.
constexpr int maximumAttempts = 3;

} // namespace

std::expected<ApplicationInstance::Role, PlatformError> MacApplicationInstance::start(const InstanceRequest &first,
                                                                                      Handler handler)
{
    for (int time = 0; time < maximumAttempts; ++time) {
        const auto sent = InstancePort::send(portName_, first, patience_);
        if (!sent)
            return std::unexpected(sent.error());
        if (*sent)
            return Role::second;
        port_ = InstancePort::create(portName_, handler);
        if (port_) {
            events_ = std::make_unique<AppleEvents>(handler);
            return Role::only;
        }
    }
    return std::unexpected(InstanceMessage::noAnswer());
}

} // namespace vantrel
