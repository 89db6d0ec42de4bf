#pragma once

#include "Platform/LoginItem.h"

namespace vantrel {

/// The app as a login item of the system's service management.
class ServiceLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] std::expected<void, PlatformError> setEnabled(bool isEnabled) override;
};

} // namespace vantrel
