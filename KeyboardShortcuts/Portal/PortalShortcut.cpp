#include "KeyboardShortcuts/Portal/PortalShortcut.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

using namespace Qt::StringLiterals;

namespace vantrel {

// The signatures that Qt DBus asks for.
// NOLINTBEGIN(bugprone-return-const-ref-from-parameter)
QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}
// NOLINTEND(bugprone-return-const-ref-from-parameter)

void registerPortalTypes()
{
    // Qt DBus finds the types of a signal by their names, and silently hears nothing of one with a name that it doesn't
    // know: not even with its own before it is used.
    qRegisterMetaType<QDBusObjectPath>();
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<PortalShortcuts>();
}

std::optional<PortalShortcuts> shortcutsIn(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    // Another type would not be refused but read as nonsense.
    if (argument.currentSignature() != "a(sa{sv})"_L1)
        return std::nullopt;
    return qdbus_cast<PortalShortcuts>(argument);
}

} // namespace vantrel
