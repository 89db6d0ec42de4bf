#pragma once

#include "Platform/LoginItem.h"
#include "Vantrel/FailureAlert.h"

namespace vantrel {

/// Opening the program with the user's session, and what the user is told when that can't be changed. Main thread only.
class LaunchAtLogin {
public:
    /// Both must outlive it.
    LaunchAtLogin(LoginItem &item, FailureAlert &alert) : item_(item), alert_(alert) {}

    [[nodiscard]] bool isEnabled() const { return item_.isEnabled(); }

    /// What holds afterwards, `isEnabled` tells.
    void setEnabled(bool isEnabled);

private:
    LoginItem &item_;
    FailureAlert &alert_;
};

} // namespace vantrel
