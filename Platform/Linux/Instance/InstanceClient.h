#pragma once

#include "Platform/InstanceRequest.h"
#include "Platform/PlatformError.h"

#include <QString>

#include <chrono>
#include <expected>

namespace vantrel {

/// Hands requests to the running app, without events, threads or D-Bus. Any thread.
class InstanceClient {
public:
    /// How long the app may take to answer: it answers between two events, so that more means that it hangs.
    static constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(5);

    explicit InstanceClient(QString socketPath, std::chrono::milliseconds patience = defaultPatience)
        : socketPath_(std::move(socketPath)),
          patience_(patience)
    {
    }

    /// True once the app has taken the request on; false when no app runs. Fails when one does, but doesn't answer in
    /// time or refuses. Blocks.
    [[nodiscard]] std::expected<bool, PlatformError> send(const InstanceRequest &request) const;

private:
    QString socketPath_;
    std::chrono::milliseconds patience_;
};

} // namespace vantrel
