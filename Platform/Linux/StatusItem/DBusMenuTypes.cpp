#include "Platform/Linux/StatusItem/DBusMenuTypes.h"

#include <QDBusMetaType>

namespace vantrel {

// The signatures that Qt DBus asks for.
// NOLINTBEGIN(bugprone-return-const-ref-from-parameter)
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItem &item)
{
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItem &item)
{
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItemKeys &keys)
{
    argument.beginStructure();
    argument << keys.id << keys.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItemKeys &keys)
{
    argument.beginStructure();
    argument >> keys.id >> keys.names;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const DBusMenuLayout &child : layout.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    layout.children.clear();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(qdbus_cast<DBusMenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event)
{
    argument.beginStructure();
    argument << event.id << event.type << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event)
{
    argument.beginStructure();
    argument >> event.id >> event.type >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}
// NOLINTEND(bugprone-return-const-ref-from-parameter)

void registerDBusMenuTypes()
{
    qDBusRegisterMetaType<DBusMenuItem>();
    qDBusRegisterMetaType<QList<DBusMenuItem>>();
    qDBusRegisterMetaType<DBusMenuItemKeys>();
    qDBusRegisterMetaType<QList<DBusMenuItemKeys>>();
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
    qDBusRegisterMetaType<DBusMenuShortcut>();
    qDBusRegisterMetaType<QList<int>>();
}

} // namespace vantrel
