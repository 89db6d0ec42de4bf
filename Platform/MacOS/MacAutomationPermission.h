#pragma once

#include "Platform/AutomationPermission.h"
#include "Platform/MacOS/WorkQueue.h"

namespace vantrel {

/// The user's consent in the system's privacy settings, under Automation.
class MacAutomationPermission final : public AutomationPermission {
public:
    [[nodiscard]] QCoro::Task<std::optional<int>> request(QString bundleID) override;

private:
    /// The system's call doesn't return before the user has answered.
    WorkQueue queue_;
};

} // namespace vantrel
