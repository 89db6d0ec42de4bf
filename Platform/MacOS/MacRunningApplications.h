#pragma once

#include "Platform/RunningApplications.h"

#include <memory>

namespace vantrel {

/// Applications as the workspace knows them, and its notifications of their ends.
class MacRunningApplications final : public RunningApplications {
public:
    MacRunningApplications();
    ~MacRunningApplications() override;

    [[nodiscard]] bool isRunning(const QString &bundleID) const override;
    void watch(const QStringList &bundleIDs, Terminated terminated) override;

private:
    struct Observation;
    std::shared_ptr<Observation> observation_;
};

/// The main thread hears of starts and ends only as its run loop turns.
[[nodiscard]] bool hasRunningInstance(const QString &bundleID);

} // namespace vantrel
