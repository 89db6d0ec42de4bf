#pragma once

#include "Platform/ApplicationInstance.h"
#include "Platform/Linux/Instance/BusApplication.h"
#include "Platform/Linux/Instance/InstanceClient.h"
#include "Platform/Linux/Instance/InstanceFolder.h"
#include "Platform/Linux/Instance/InstanceListener.h"
#include "Platform/Linux/Instance/InstanceLock.h"

#include <QDBusConnection>

#include <chrono>
#include <memory>

namespace vantrel {

/// The app is whichever process holds a lock beside its socket. Other processes ask by that socket, desktops by the
/// session bus, where there is one.
class LinuxApplicationInstance final : public ApplicationInstance {
public:
    /// `bus` may be unconnected. `patience` is how long another process may take to answer. `otherInterfaces` are those
    /// of the app's object on the bus besides the one for requests, and must outlive this; null for none.
    LinuxApplicationInstance(QDBusConnection bus, QString socketPath,
                             std::chrono::milliseconds patience = InstanceClient::defaultPatience,
                             QDBusVirtualObject *otherInterfaces = nullptr);
    ~LinuxApplicationInstance() override = default;
    Q_DISABLE_COPY_MOVE(LinuxApplicationInstance)

    [[nodiscard]] std::expected<Role, PlatformError> start(const InstanceRequest &first, Handler handler) override;

private:
    /// Holds the lock afterwards when it answers `only`.
    [[nodiscard]] std::expected<Role, PlatformError> lockOrHandOver(const InstanceRequest &first);
    [[nodiscard]] std::expected<Role, PlatformError> appear(const InstanceRequest &first, const Handler &handler);
    void disappear();

    QDBusConnection bus_;
    QString socketPath_;
    std::chrono::milliseconds patience_;
    QDBusVirtualObject *otherInterfaces_;
    // The reverse of the order in which it ends: the next instance may begin once the lock is free.
    InstanceFolder folder_;
    InstanceLock lock_;
    std::unique_ptr<BusApplication> busApplication_;
    std::unique_ptr<InstanceListener> listener_;
};

} // namespace vantrel
