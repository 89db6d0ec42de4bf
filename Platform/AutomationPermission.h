#pragma once

#include <QCoroTask>
#include <QString>

#include <optional>

namespace vantrel {

/// Whether the user lets this program control another one. Main thread only.
class AutomationPermission {
public:
    static constexpr int granted = 0;
    static constexpr int denied = -1743;

    virtual ~AutomationPermission() = default;

    /// Waits for the user where the system has to ask. The system's number: `granted`, `denied` or another reason why
    /// it can't say. None when the application can't be named to the system.
    [[nodiscard]] virtual QCoro::Task<std::optional<int>> request(QString bundleID) = 0;
};

} // namespace vantrel
