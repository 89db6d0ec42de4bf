#pragma once

#include "Platform/ApplicationInstance.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>

namespace vantrel {

/// The app on the session bus: its name, by which the bus starts it, and the object that desktops call.
class BusApplication final : public QDBusVirtualObject {
public:
    /// `handler` is called from the event loop, once the name is owned. `others` has the object's other interfaces, and
    /// must outlive this; null for none.
    BusApplication(QDBusConnection bus, ApplicationInstance::Handler handler, QDBusVirtualObject *others = nullptr);
    /// Gives the name up.
    ~BusApplication() override;
    Q_DISABLE_COPY_MOVE(BusApplication)

    /// Takes the name; `only` also when there is no bus that could have been asked. When another process has the name,
    /// that one is handed `first`. Fails when it doesn't answer. Blocks no longer than the deadline.
    [[nodiscard]] std::expected<ApplicationInstance::Role, PlatformError> start(const InstanceRequest &first,
                                                                                const QDeadlineTimer &deadline);

    [[nodiscard]] QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusConnection bus_;
    ApplicationInstance::Handler handler_;
    QDBusVirtualObject *others_;
};

} // namespace vantrel
