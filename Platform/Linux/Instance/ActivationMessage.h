#pragma once

#include "Platform/InstanceRequest.h"

#include <QDBusMessage>

#include <expected>

/// Requests as D-Bus messages of the interface org.freedesktop.Application, which the Desktop Entry Specification
/// defines: Activate(a{sv}), Open(as, a{sv}), ActivateAction(s, av, a{sv}).
namespace vantrel::ActivationMessage {

/// The app's name on the session bus, and its object. Names of the desktop entry's file and of the service follow it.
[[nodiscard]] QString busName();
[[nodiscard]] QString objectPath();

/// For the object's introspection: the XML of its one interface.
[[nodiscard]] QString interfaceDescription();

/// A call of the app, if it runs: it is not started for it.
[[nodiscard]] QDBusMessage call(const InstanceRequest &request);

enum class Problem : std::uint8_t {
    otherInterface,
    unknownMethod,
    wrongArguments,
};

/// What a call asks for. An action's parameters have no meaning here.
[[nodiscard]] std::expected<InstanceRequest, Problem> request(const QDBusMessage &message);

} // namespace vantrel::ActivationMessage
