#pragma once

#include <functional>

namespace vantrel {

/// Whether the user wants dark windows, where the toolkit doesn't see to that itself. Main thread only.
class Appearance {
public:
    virtual ~Appearance() = default;

    /// Calls back from the event loop as soon as the system has answered, and after each change. Call once.
    virtual void observe(std::function<void(bool isDark)> changed) = 0;
};

} // namespace vantrel
