#pragma once

#include "Platform/MacOS/AppleEvents.h"
#include "Platform/MacOS/InstancePort.h"

namespace vantrel {

/// The app is whichever process has the message port's name. Other programs of ours ask by that port, the system by
/// Apple events.
class MacApplicationInstance final : public ApplicationInstance {
public:
    /// `patience` is how long another process may take to answer.
    explicit MacApplicationInstance(QString portName = InstancePort::defaultName(),
                                    std::chrono::milliseconds patience = InstancePort::defaultPatience)
        : portName_(std::move(portName)),
          patience_(patience)
    {
    }

    [[nodiscard]] std::expected<Role, PlatformError> start(const InstanceRequest &first, Handler handler) override;

private:
    QString portName_;
    std::chrono::milliseconds patience_;
    std::unique_ptr<InstancePort> port_;
    std::unique_ptr<AppleEvents> events_;
};

} // namespace vantrel
