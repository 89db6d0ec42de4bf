#include "Platform/Linux/Search/BusInterface.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QCoro::Task<> send(BusInterface::Reply pending, QDBusConnection connection, bool isWanted)
{
    const QDBusMessage reply = co_await pending;
    if (isWanted)
        connection.send(reply);
}

} // namespace

BusInterface::BusInterface(QLatin1StringView name, QLatin1StringView description, QList<Method> methods)
    : name_(name),
      description_(description),
      methods_(std::move(methods))
{
}

QString BusInterface::description() const
{
    return u"  <interface name='%1'>\n%2  </interface>\n"_s.arg(name_, description_);
}

bool BusInterface::handle(const QDBusMessage &call, const QDBusConnection &connection) const
{
    const bool isNamed = call.interface() == name_;
    if (!isNamed && !call.interface().isEmpty())
        return false;
    const auto method = std::ranges::find(methods_, call.member(), &Method::name);
    if (method == methods_.end() && !isNamed)
        return false;
    if (method == methods_.end()) {
        const QString text = u"%1 has no method %2."_s.arg(name_, call.member());
        connection.send(call.createErrorReply(QDBusError::UnknownMethod, text));
        return true;
    }
    if (call.signature() != method->signature) {
        const QString text = u"%1 takes (%2), not (%3)."_s.arg(method->name, method->signature, call.signature());
        connection.send(call.createErrorReply(QDBusError::InvalidArgs, text));
        return true;
    }
    send(method->call(call), connection, call.isReplyRequired());
    return true;
}

BusInterface::Reply immediately(QDBusMessage reply)
{
    co_return reply;
}

} // namespace vantrel
