#pragma once

#include "Platform/AccessibilityTrust.h"

namespace vantrel {

/// The user's consent in the system's privacy settings, under Accessibility.
class MacAccessibilityTrust final : public AccessibilityTrust {
public:
    [[nodiscard]] bool isTrusted() const override;
    [[nodiscard]] bool isTrustedElseAsk() override;
};

} // namespace vantrel
