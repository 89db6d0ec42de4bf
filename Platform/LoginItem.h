#pragma once

#include "Platform/PlatformError.h"

#include <expected>

namespace vantrel {

/// Whether the program starts with the user's session. Main thread only.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// Asked of the system each time, for the user can change it there too.
    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// The system may refuse; what holds then, `isEnabled` tells.
    [[nodiscard]] virtual std::expected<void, PlatformError> setEnabled(bool isEnabled) = 0;
};

} // namespace vantrel
