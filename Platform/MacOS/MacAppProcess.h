#pragma once

#include "Platform/AppProcess.h"

namespace vantrel {

/// The app, by its message port, and started by Launch Services: the system then asks the user about the app, not about
/// the terminal from which a command came.
class MacAppProcess final : public AppProcess {
public:
    [[nodiscard]] std::expected<bool, PlatformError> send(InstanceRequest request) override;
    [[nodiscard]] std::expected<void, PlatformError> start(const InstanceRequest &request) override;
    [[nodiscard]] PlatformError become() override;
};

} // namespace vantrel
