#pragma once

#include <QDBusConnection>

#include <functional>

namespace vantrel::test {

/// A connection that nobody else uses, closed with this. Open unless there is no bus at the address.
class OwnConnection {
public:
    explicit OwnConnection(const QString &address);
    ~OwnConnection();
    Q_DISABLE_COPY_MOVE(OwnConnection)

    [[nodiscard]] QDBusConnection &operator*() { return connection_; }
    [[nodiscard]] QDBusConnection *operator->() { return &connection_; }

    /// Waits until the bus has passed on all that was sent before, and until what has arrived waits in the event loop,
    /// which doesn't run meanwhile.
    void synchronize();

private:
    QString name_;
    QDBusConnection connection_;
};

/// Runs the event loop until something holds; false when it doesn't for ten seconds.
[[nodiscard]] bool eventually(const std::function<bool()> &condition);

} // namespace vantrel::test
