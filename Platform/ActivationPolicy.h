#pragma once

namespace vantrel {

/// How the program shows itself among the system's running applications, and its way to the front. Main thread only.
class ActivationPolicy {
public:
    virtual ~ActivationPolicy() = default;

    /// Like any application, with a place in the Dock.
    virtual void becomeRegular() = 0;
    /// As something that only has a symbol in the menu bar.
    virtual void becomeAccessory() = 0;
    /// Brings the program's windows to the front.
    virtual void activate() = 0;
};

} // namespace vantrel
