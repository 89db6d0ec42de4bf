#pragma once

#include <functional>

namespace vantrel {

/// What keeps the program up to date where the system itself doesn't. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// False while a check or an update is under way.
    [[nodiscard]] virtual bool canCheckForUpdates() const = 0;
    /// Calls `changed` with the present value from within, and on the main thread after each change. Call once.
    virtual void observeCanCheckForUpdates(std::function<void(bool canCheck)> changed) = 0;
    /// Shows its own windows.
    virtual void checkForUpdates() = 0;

    [[nodiscard]] virtual bool automaticallyChecksForUpdates() const = 0;
    virtual void setAutomaticallyChecksForUpdates(bool checks) = 0;
};

} // namespace vantrel
