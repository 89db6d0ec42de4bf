#pragma once

#include "Platform/RunningApplications.h"

#include <QHash>
#include <QObject>

namespace vantrel::test {

/// Applications that run when a test says so. Main thread only.
class FakeRunningApplications final : public RunningApplications {
public:
    /// One more instance.
    void start(const QString &bundleID) { ++instances_[bundleID]; }

    /// Ends one instance, which is told by the event loop; false when none runs.
    bool end(const QString &bundleID)
    {
        if (!isRunning(bundleID))
            return false;
        --instances_[bundleID];
        if (watched_.contains(bundleID))
            QMetaObject::invokeMethod(
                &context_, [this, bundleID] { terminated_(bundleID, isRunning(bundleID)); }, Qt::QueuedConnection);
        return true;
    }

    /// What `watch` was called with.
    [[nodiscard]] const QStringList &watched() const { return watched_; }

    [[nodiscard]] bool isRunning(const QString &bundleID) const override { return instances_.value(bundleID) > 0; }

    void watch(const QStringList &bundleIDs, Terminated terminated) override
    {
        watched_ = bundleIDs;
        terminated_ = std::move(terminated);
    }

private:
    QHash<QString, int> instances_;
    QStringList watched_;
    Terminated terminated_;
    /// Owns what is still to be told.
    QObject context_;
};

} // namespace vantrel::test
