#pragma once

#include "Platform/PlatformError.h"

#include <QProcessEnvironment>
#include <QStringList>

#include <expected>

namespace vantrel {

/// Starts a program that lives on its own: in a session of its own, so that no terminal's end reaches it, and with
/// nothing to read or write. `commandLine` is the program, found through PATH when it has no slash, and its arguments;
/// no shell sees them. Fails with the system's reason when the program can't be executed.
[[nodiscard]] std::expected<void, PlatformError>
startDetached(const QStringList &commandLine, const QString &workingDirectory, const QProcessEnvironment &environment);

/// The variables without those that speak of the process they were made for.
[[nodiscard]] QProcessEnvironment environmentForChildren(QProcessEnvironment variables);

} // namespace vantrel
