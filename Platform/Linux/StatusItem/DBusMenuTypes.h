#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace vantrel {

// What travels in calls of com.canonical.dbusmenu.

/// A row with some of its properties: (ia{sv}).
struct DBusMenuItem {
    int id = 0;
    QVariantMap properties;

    friend bool operator==(const DBusMenuItem &, const DBusMenuItem &) = default;
};

/// A row with the names of properties: (ias).
struct DBusMenuItemKeys {
    int id = 0;
    QStringList names;

    friend bool operator==(const DBusMenuItemKeys &, const DBusMenuItemKeys &) = default;
};

/// A row with those below it: (ia{sv}av), each of the last again one of these.
struct DBusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<DBusMenuLayout> children;
};

/// Something that happened to a row: (isvu).
struct DBusMenuEvent {
    int id = 0;
    QString type;
    QDBusVariant data;
    /// In milliseconds of the window system's clock; 0 when unknown.
    uint timestamp = 0;
};

/// One entry for each press of keys, which names the modifiers and then the key: aas.
using DBusMenuShortcut = QList<QStringList>;

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItem &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItem &item);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItemKeys &keys);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItemKeys &keys);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event);

/// To be called before any of these is sent, received or exported.
void registerDBusMenuTypes();

} // namespace vantrel
