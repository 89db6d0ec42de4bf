#include "Platform/Linux/Instance/LinuxApplicationInstance.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LinuxApplicationInstance)
};

} // namespace

LinuxApplicationInstance::LinuxApplicationInstance(QDBusConnection bus, QString socketPath,
                                                   std::chrono::milliseconds patience,
                                                   QDBusVirtualObject *otherInterfaces)
    : bus_(std::move(bus)),
      socketPath_(std::move(socketPath)),
      patience_(patience),
      otherInterfaces_(otherInterfaces)
{
}

std::expected<ApplicationInstance::Role, PlatformError> LinuxApplicationInstance::start(const InstanceRequest &first,
                                                                                        Handler handler)
{
    const QString path = QFileInfo(socketPath_).path();
    auto folder = InstanceFolder::make(path);
    if (!folder)
        return std::unexpected(folder.error());
    folder_ = *std::move(folder);
    auto lock = InstanceLock::create(folder_, path);
    if (!lock)
        return std::unexpected(lock.error());
    lock_ = *std::move(lock);
    auto role = lockOrHandOver(first);
    if (role == Role::only)
        role = appear(first, handler);
    if (role != Role::only)
        disappear();
    return role;
}

std::expected<ApplicationInstance::Role, PlatformError>
LinuxApplicationInstance::lockOrHandOver(const InstanceRequest &first)
{
    const QDeadlineTimer deadline(patience_);
    const InstanceClient client(socketPath_, patience_);
    while (!lock_.tryLock()) {
        const auto isTaken = client.send(first);
        if (!isTaken)
            return std::unexpected(isTaken.error());
        if (*isTaken)
            return Role::second;
        if (deadline.hasExpired()) {
            //: Error when another start of the app never gets as far as to answer.
            return std::unexpected(PlatformError{Texts::tr("Vantrel is starting or ending, but doesn't get on.")});
        }
        lock_.waitForHolder(deadline);
    }
    return Role::only;
}

std::expected<ApplicationInstance::Role, PlatformError> LinuxApplicationInstance::appear(const InstanceRequest &first,
                                                                                         const Handler &handler)
{
    busApplication_ = std::make_unique<BusApplication>(bus_, handler, otherInterfaces_);
    auto role = busApplication_->start(first, QDeadlineTimer(patience_));
    if (role != Role::only)
        return role;
    auto listener = InstanceListener::create(folder_, socketPath_, handler);
    if (!listener)
        return std::unexpected(listener.error());
    listener_ = *std::move(listener);
    return Role::only;
}

void LinuxApplicationInstance::disappear()
{
    listener_.reset();
    busApplication_.reset();
    lock_ = {};
    folder_ = {};
}

} // namespace vantrel
