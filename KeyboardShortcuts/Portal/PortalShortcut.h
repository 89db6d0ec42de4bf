#pragma once

#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QVariantMap>

namespace vantrel {

/// A shortcut as the portal's calls and signals have it, of the signature (sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

using PortalShortcuts = QList<PortalShortcut>;

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut);
const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut);

/// To be called before any is sent or received.
void registerPortalTypes();

/// The shortcuts in an answer; null when there is something else.
[[nodiscard]] std::optional<PortalShortcuts> shortcutsIn(const QVariant &value);

} // namespace vantrel
