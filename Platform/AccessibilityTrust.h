#pragma once

namespace vantrel {

/// Whether the user lets this program use other programs' menus and keys. Main thread only.
class AccessibilityTrust {
public:
    virtual ~AccessibilityTrust() = default;

    /// Asks nobody.
    [[nodiscard]] virtual bool isTrusted() const = 0;

    /// When not, the system asks the user, whose answer comes too late for this call.
    [[nodiscard]] virtual bool isTrustedElseAsk() = 0;
};

} // namespace vantrel
