#pragma once

#include "Platform/AutomationPermission.h"
#include "Platform/LogChannel.h"
#include "Platform/SafariBridge.h"
#include "Vantrel/Clock.h"
#include "Vantrel/Safari/Failure.h"

namespace vantrel::Safari {

/// A Safari that can be driven.
struct Connection {
    /// Never null.
    std::shared_ptr<SafariApplication> application;
    /// Whether it had to be started.
    bool isFreshlyStarted = false;
};

/// Brings Safari to the front and makes sure that it may be driven. Main thread only.
class Connector {
public:
    /// What it works with; all must outlive it, and the sink the connections as well.
    struct Environment {
        SafariBridge &bridge;
        AutomationPermission &automation;
        Clock &clock;
        LogSink &log;
    };

    explicit Connector(const Environment &environment);

    /// Starts Safari if need be.
    [[nodiscard]] QCoro::Task<Result<Connection>> connect(QString bundleID);

private:
    [[nodiscard]] QCoro::Task<bool> isAllowed(QString bundleID);

    Environment environment_;
    LogChannel log_;
};

} // namespace vantrel::Safari
