#pragma once

#include "Platform/PlatformError.h"

#include <QStringList>

namespace vantrel {

/// The path of another of our programs: where it is installed, seen from the command's folder, or beside the command
/// where both were built.
[[nodiscard]] QString ownProgram(const QString &name);

/// The path of the command, seen from any of our programs; where `searchPath`, the value of $PATH, leads to the same
/// file, as it is named there: such a name outlives an update that changes what it links to.
[[nodiscard]] QString commandProgram(const QString &searchPath);

/// The same for a command with that path.
[[nodiscard]] QString lastingName(const QString &program, const QString &searchPath);

/// Turns this process into a program; returns only when that fails.
[[nodiscard]] PlatformError becomeProgram(const QString &program, const QStringList &arguments);

} // namespace vantrel
