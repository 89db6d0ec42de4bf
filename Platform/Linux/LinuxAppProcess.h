#pragma once

#include "Platform/AppProcess.h"

#include <QProcessEnvironment>

namespace vantrel {

/// The app is a program of its own, so that commands don't load what they have no need of.
class LinuxAppProcess final : public AppProcess {
public:
    /// `program` is the app's path.
    LinuxAppProcess(QString program, const QProcessEnvironment &variables);

    [[nodiscard]] std::expected<bool, PlatformError> send(InstanceRequest request) override;
    [[nodiscard]] std::expected<void, PlatformError> start(const InstanceRequest &request) override;
    [[nodiscard]] PlatformError become() override;

private:
    [[nodiscard]] bool hasDisplay() const;

    QString program_;
    QProcessEnvironment variables_;
};

} // namespace vantrel
