#pragma once

#include "KeyboardShortcuts/Portal/PortalShortcut.h"

#include <QDBusAbstractInterface>
#include <QDBusObjectPath>

namespace vantrel {

/// The portal's object. `owner` of each of these is the portal's unique name, so that nothing its successor says is
/// taken for its own.
class GlobalShortcutsPortal final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    static constexpr QLatin1StringView serviceName{"org.freedesktop.portal.Desktop"};
    static constexpr QLatin1StringView objectPath{"/org/freedesktop/portal/desktop"};
    static constexpr QLatin1StringView interfaceName{"org.freedesktop.portal.GlobalShortcuts"};

    GlobalShortcutsPortal(const QString &owner, const QDBusConnection &connection)
        : QDBusAbstractInterface(owner, objectPath, interfaceName.data(), connection, nullptr)
    {
    }

    // The protocol's names.
    // NOLINTBEGIN(readability-identifier-naming)
Q_SIGNALS:
    void Activated(const QDBusObjectPath &session, const QString &id, qulonglong time, const QVariantMap &options);
    void Deactivated(const QDBusObjectPath &session, const QString &id, qulonglong time, const QVariantMap &options);
    /// By the name under which Qt DBus knows the type.
    void ShortcutsChanged(const QDBusObjectPath &session, const QList<vantrel::PortalShortcut> &shortcuts);
    // NOLINTEND(readability-identifier-naming)
};

/// What a call to the portal leads to, perhaps after the user was asked.
class PortalRequest final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    PortalRequest(const QString &owner, const QString &path, const QDBusConnection &connection)
        : QDBusAbstractInterface(owner, path, "org.freedesktop.portal.Request", connection, nullptr)
    {
    }

Q_SIGNALS:
    /// 0 is success, 1 the user's no, 2 any other end.
    // The protocol's name.
    // NOLINTNEXTLINE(readability-identifier-naming)
    void Response(uint response, const QVariantMap &results);
};

/// A session, which the portal or the program ends.
class PortalSessionObject final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    PortalSessionObject(const QString &owner, const QString &path, const QDBusConnection &connection)
        : QDBusAbstractInterface(owner, path, "org.freedesktop.portal.Session", connection, nullptr)
    {
    }

Q_SIGNALS:
    /// Some portals give details, others don't.
    // The protocol's name.
    // NOLINTNEXTLINE(readability-identifier-naming)
    void Closed();
};

} // namespace vantrel
