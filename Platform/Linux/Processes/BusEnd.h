#pragma once

#include <QDBusAbstractInterface>

namespace vantrel {

/// Tells that a connection to a message bus has ended: what libdbus sends to itself then.
class BusEnd final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    explicit BusEnd(const QDBusConnection &bus);

Q_SIGNALS:
    // NOLINTNEXTLINE(readability-identifier-naming): the message's name on the bus.
    void Disconnected();
};

} // namespace vantrel
