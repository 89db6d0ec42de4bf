#pragma once

#include "Platform/ApplicationInstance.h"
#include "Platform/Linux/Instance/InstanceFolder.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace vantrel {

/// Takes requests on at the app's socket. Of those who connect, only processes of the same user are heard.
class InstanceListener final : public QObject {
public:
    /// Listens from now on, in place of whatever listened there. For the process that holds the lock alone; `folder`
    /// has to outlive the listener. `path` is what the user knows the socket by.
    [[nodiscard]] static std::expected<std::unique_ptr<InstanceListener>, PlatformError>
    create(const InstanceFolder &folder, const QString &path, ApplicationInstance::Handler handler);

    ~InstanceListener() override;
    Q_DISABLE_COPY_MOVE(InstanceListener)

private:
    InstanceListener(const InstanceFolder &folder, OwnedDescriptor socket, ApplicationInstance::Handler handler);

    void accept();
    void add(OwnedDescriptor socket);
    void pause();

    const InstanceFolder &folder_;
    OwnedDescriptor socket_;
    ApplicationInstance::Handler handler_;
    QSocketNotifier notifier_;
    int connectionCount_ = 0;
};

} // namespace vantrel
