#pragma once

#include <QCoroTask>
#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

namespace vantrel {

/// An interface of the app's object on the session bus: what is called by which name, and how it describes itself.
/// Answers may take their time; other calls are answered meanwhile. Main thread only.
class BusInterface {
public:
    /// The reply to a call, or an error as one.
    using Reply = QCoro::Task<QDBusMessage>;

    struct Method {
        QLatin1StringView name;
        /// Of its arguments: it is only called with these.
        QLatin1StringView signature;
        std::function<Reply(const QDBusMessage &call)> call;
    };

    /// `description` is what stands in the element "interface" of the introspection's XML.
    BusInterface(QLatin1StringView name, QLatin1StringView description, QList<Method> methods);

    [[nodiscard]] QString description() const;

    /// False when the call is for another interface; one without any is taken by whoever has its method.
    [[nodiscard]] bool handle(const QDBusMessage &call, const QDBusConnection &connection) const;

private:
    QLatin1StringView name_;
    QLatin1StringView description_;
    QList<Method> methods_;
};

/// A reply that is there at once.
[[nodiscard]] BusInterface::Reply immediately(QDBusMessage reply);

} // namespace vantrel
