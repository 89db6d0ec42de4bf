#pragma once

#include "Platform/InstanceRequest.h"
#include "Platform/PlatformError.h"

#include <expected>
#include <memory>

namespace vantrel {

/// The app, as the command line sees it. Main thread only.
class AppProcess {
public:
    virtual ~AppProcess() = default;

    /// Hands a request to the running app: true when it took it on, false when no app runs. Fails when one runs but
    /// doesn't answer. Adds what lets it come to the front. Blocks.
    [[nodiscard]] virtual std::expected<bool, PlatformError> send(InstanceRequest request) = 0;

    /// Starts the app with a request, beside this process. Fails with a message when there is no display.
    [[nodiscard]] virtual std::expected<void, PlatformError> start(const InstanceRequest &request) = 0;

    /// Turns this process into the app; returns only when that fails, also because there is no display.
    [[nodiscard]] virtual PlatformError become() = 0;

    [[nodiscard]] static std::unique_ptr<AppProcess> create();
};

/// The arguments with which the app starts for a request.
[[nodiscard]] QStringList appArguments(const InstanceRequest &request);

} // namespace vantrel
