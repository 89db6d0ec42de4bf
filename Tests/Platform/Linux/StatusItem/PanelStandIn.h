#pragma once

#include "Platform/Linux/StatusItem/DBusMenuTypes.h"
#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/StatusItem/OwnConnection.h"

#include <QDBusAbstractInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <memory>

namespace vantrel::test {

/// A menu on the bus as a panel sees it.
class RemoteMenu final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    RemoteMenu(const QString &service, const QString &path, const QDBusConnection &connection);

    // The protocol's names.
    // NOLINTBEGIN(readability-identifier-naming)
Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);
    void ItemsPropertiesUpdated(const QList<vantrel::DBusMenuItem> &updatedProps,
                                const QList<vantrel::DBusMenuItemKeys> &removedProps);
    // NOLINTEND(readability-identifier-naming)
};

/// A panel that draws one program's symbol and menu. Each call waits for its answer, and the event loop runs meanwhile.
class PanelStandIn {
public:
    /// `service` is the program's name on the bus.
    PanelStandIn(const PrivateBus &bus, const QString &service);

    /// All the item's properties.
    [[nodiscard]] QVariantMap properties();
    [[nodiscard]] QDBusMessage callItem(const QString &method, const QVariantList &arguments);

    /// All that the menu says of itself.
    [[nodiscard]] QVariantMap menuProperties();
    [[nodiscard]] QDBusMessage callMenu(const QString &method, const QVariantList &arguments);
    /// The whole menu with all properties.
    [[nodiscard]] DBusMenuLayout layout();
    [[nodiscard]] uint revision();
    /// Number of the row with that label; -1 for none.
    [[nodiscard]] int idOf(const QString &label);
    [[nodiscard]] bool aboutToShow();
    /// The error's name; empty when the row took it.
    [[nodiscard]] QString click(int id, uint timestamp = 0);

    [[nodiscard]] RemoteMenu &menu() { return menu_; }

private:
    [[nodiscard]] QDBusMessage call(const QString &path, const QString &interface, const QString &method,
                                    const QVariantList &arguments);
    [[nodiscard]] QVariantMap propertiesOf(const QString &path, const QString &interface);

    QString service_;
    OwnConnection connection_;
    RemoteMenu menu_;
};

} // namespace vantrel::test
