#pragma once

#include <QStringList>

#include <functional>

namespace vantrel {

/// Which applications run, whoever started them, and when they end. Main thread only.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    [[nodiscard]] virtual bool isRunning(const QString &bundleID) const = 0;

    /// Calls `terminated` after an instance of one of the applications has ended, once for each end; others may still
    /// run. It is called from the event loop, and no more once this object is gone. Costs nothing while nothing ends.
    /// Call once.
    virtual void watch(const QStringList &bundleIDs, std::function<void(const QString &bundleID)> terminated) = 0;
};

} // namespace vantrel
