#pragma once

#include "Platform/ApplicationInstance.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace vantrel {

/// The running app's ear in the user's session: a message port, whose name one process alone can have. The system frees
/// the name when that process ends, however it ends. Needs the main thread's run loop.
class InstancePort {
public:
    /// How long the app may take to answer: it answers between two events, so that more means that it hangs.
    static constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(5);

    [[nodiscard]] static QString defaultName();

    /// Null when another process has the name. `handler` is called from the event loop.
    [[nodiscard]] static std::unique_ptr<InstancePort> create(const QString &name,
                                                              ApplicationInstance::Handler handler);

    ~InstancePort();
    Q_DISABLE_COPY_MOVE(InstancePort)

    /// Hands a request to the process that has the name: true once it has taken it on; false when there is none. Fails
    /// when there is one, but it doesn't answer in time or refuses. Blocks.
    [[nodiscard]] static std::expected<bool, PlatformError> send(const QString &name, const InstanceRequest &request,
                                                                 std::chrono::milliseconds patience = defaultPatience);

private:
    struct Native;

    explicit InstancePort(ApplicationInstance::Handler handler);

    /// The answer to a line.
    [[nodiscard]] QByteArray take(const QByteArray &line);

    ApplicationInstance::Handler handler_;
    std::unique_ptr<Native> native_;
    /// What is to be passed on is forgotten with it.
    QObject context_;
};

} // namespace vantrel
