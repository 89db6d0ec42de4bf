#pragma once

#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/StatusItem/OwnConnection.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace vantrel::test {

/// The object of org.kde.StatusNotifierWatcher on the bus, in a connection of its own.
class WatcherStandIn final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    /// How it tells that a panel came or went.
    enum class Notice : std::uint8_t { none, ownSignals, propertyChange };

    WatcherStandIn(const PrivateBus &bus, bool hasHost, Notice notice = Notice::ownSignals);

    [[nodiscard]] bool hasHost() const { return hasHost_; }
    void setHasHost(bool hasHost);

    /// Calls for registration that were answered, each as "argument from sender".
    [[nodiscard]] const QStringList &registrations() const { return registrations_; }

    /// Calls for registration fail from now on.
    void setRefuses(bool refuses) { refuses_ = refuses; }
    /// Calls for registration get their answer when `answer` is called.
    void hold() { holds_ = true; }
    void answer();
    [[nodiscard]] qsizetype heldCalls() const { return held_.size(); }

    // The protocol's names.
    // NOLINTBEGIN(readability-identifier-naming)
public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service);

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();
    // NOLINTEND(readability-identifier-naming)

private:
    OwnConnection connection_;
    bool hasHost_;
    Notice notice_;
    bool refuses_ = false;
    bool holds_ = false;
    QStringList registrations_;
    QList<QDBusMessage> held_;
};

} // namespace vantrel::test
