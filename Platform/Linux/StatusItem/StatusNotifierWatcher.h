#pragma once

#include <QDBusAbstractInterface>

#include <limits>

namespace vantrel {

/// The calls that wait for a panel's answer have no time limit: a panel that hangs while the desktop starts answers
/// late, and one that ends is reported by the bus.
inline constexpr int noTimeLimit = std::numeric_limits<int>::max();

/// The object where a session's symbols and panels are registered.
class StatusNotifierWatcher final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    static constexpr QLatin1StringView interfaceName{"org.kde.StatusNotifierWatcher"};
    static constexpr QLatin1StringView objectPath{"/StatusNotifierWatcher"};

    /// `owner` is its unique name, so that nothing its successor says is taken for its own.
    StatusNotifierWatcher(const QString &owner, const QDBusConnection &connection)
        : QDBusAbstractInterface(owner, objectPath, interfaceName.data(), connection, nullptr)
    {
        setTimeout(noTimeLimit);
    }

    // The protocol's names.
    // NOLINTBEGIN(readability-identifier-naming)
Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();
    // NOLINTEND(readability-identifier-naming)
};

/// The watcher's properties; same as above.
class StatusNotifierWatcherProperties final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    StatusNotifierWatcherProperties(const QString &owner, const QDBusConnection &connection)
        : QDBusAbstractInterface(owner, StatusNotifierWatcher::objectPath, "org.freedesktop.DBus.Properties",
                                 connection, nullptr)
    {
        setTimeout(noTimeLimit);
    }

Q_SIGNALS:
    // The protocol's name.
    // NOLINTNEXTLINE(readability-identifier-naming)
    void PropertiesChanged(const QString &interface, const QVariantMap &changed, const QStringList &invalidated);
};

} // namespace vantrel
