#include "Platform/Linux/Processes/BusEnd.h"

using namespace Qt::StringLiterals;

namespace vantrel {

// Without the name of a service, since a name would be looked up on the bus.
BusEnd::BusEnd(const QDBusConnection &bus)
    : QDBusAbstractInterface(QString(), u"/org/freedesktop/DBus/Local"_s, "org.freedesktop.DBus.Local", bus, nullptr)
{
}

} // namespace vantrel
