#include "Platform/Linux/Instance/ActivationMessage.h"

#include <QDBusArgument>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vantrel::ActivationMessage {
namespace {

constexpr auto interfaceName = "org.freedesktop.Application"_L1;
constexpr auto activateMethod = "Activate"_L1;
constexpr auto openMethod = "Open"_L1;
constexpr auto actionMethod = "ActivateAction"_L1;
constexpr auto tokenKey = "activation-token"_L1;
constexpr auto startupKey = "desktop-startup-id"_L1;

struct Method {
    QLatin1StringView name;
    InstanceRequest::Kind kind;
    /// Of its arguments; the last one is the platform data.
    QLatin1StringView signature;
};

constexpr std::array methods{
    Method{activateMethod, InstanceRequest::Kind::activate, "a{sv}"_L1},
    Method{openMethod, InstanceRequest::Kind::open, "asa{sv}"_L1},
    Method{actionMethod, InstanceRequest::Kind::action, "sava{sv}"_L1},
};

QVariantMap platformData(const InstanceRequest &request)
{
    QVariantMap data;
    if (!request.activationToken.isEmpty())
        data.insert(tokenKey, request.activationToken);
    if (!request.startupID.isEmpty())
        data.insert(startupKey, request.startupID);
    return data;
}

} // namespace

QString busName()
{
    return u"app.kestrune.Vantrel"_s;
}

QString objectPath()
{
    return u"/app/kestrune/Vantrel"_s;
}

QString interfaceDescription()
{
    return uR"(  <interface name="org.freedesktop.Application">
    <method name="Activate">
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="Open">
      <arg name="uris" type="as" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="ActivateAction">
      <arg name="action_name" type="s" direction="in"/>
      <arg name="parameter" type="av" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
  </interface>
)"_s;
}

QDBusMessage call(const InstanceRequest &request)
{
    QVariantList arguments;
    QLatin1StringView method = activateMethod;
    switch (request.kind) {
    case InstanceRequest::Kind::activate: break;
    case InstanceRequest::Kind::open:
        method = openMethod;
        arguments.append(request.links);
        break;
    case InstanceRequest::Kind::action:
        method = actionMethod;
        arguments.append(request.action);
        arguments.append(QVariant(QVariantList()));
        break;
    }
    arguments.append(platformData(request));
    QDBusMessage message = QDBusMessage::createMethodCall(busName(), objectPath(), interfaceName, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

std::expected<InstanceRequest, Problem> request(const QDBusMessage &message)
{
    // The interface may be left out of a call.
    if (!message.interface().isEmpty() && message.interface() != interfaceName)
        return std::unexpected(Problem::otherInterface);
    const auto *const method = std::ranges::find(methods, message.member(), &Method::name);
    if (method == methods.end())
        return std::unexpected(Problem::unknownMethod);
    if (message.signature() != method->signature)
        return std::unexpected(Problem::wrongArguments);
    const QVariantList arguments = message.arguments();
    const auto data = qdbus_cast<QVariantMap>(arguments.last());
    InstanceRequest request{.kind = method->kind,
                            .activationToken = data.value(tokenKey).toString(),
                            .startupID = data.value(startupKey).toString()};
    if (request.kind == InstanceRequest::Kind::open)
        request.links = arguments.first().toStringList();
    else if (request.kind == InstanceRequest::Kind::action)
        request.action = arguments.first().toString();
    return request;
}

} // namespace vantrel::ActivationMessage
