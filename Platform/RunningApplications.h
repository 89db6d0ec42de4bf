#pragma once

#include <QStringList>

#include <functional>

namespace vantrel {

/// Which applications run, whoever started them, and when they end. Main thread only.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    /// Called with whether another instance of the application runs by then.
    using Terminated = std::function<void(const QString &bundleID, bool isRunning)>;

    /// May have to wait for what looks that up.
    [[nodiscard]] virtual bool isRunning(const QString &bundleID) const = 0;

    /// Calls `terminated` after an instance of one of the applications has ended, once for each end. It is called from
    /// the event loop, and no more once this object is gone. Costs nothing while nothing ends. Call once.
    virtual void watch(const QStringList &bundleIDs, Terminated terminated) = 0;
};

} // namespace vantrel
