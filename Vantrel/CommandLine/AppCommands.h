#pragma once

#include "Vantrel/CommandLine/CommandContext.h"

#include <QStringList>

namespace vantrel::AppCommands {

/// "settings", "menu" and "quit": what they ask of the running app.
[[nodiscard]] bool isAction(const QString &word);

/// Asks the running app for an action. All but "quit" start it when it isn't running.
[[nodiscard]] ExitStatus act(const QString &action, CommandContext &context);

/// Hands links to the app, starting it if need be.
[[nodiscard]] ExitStatus openLinks(const QStringList &links, CommandContext &context);

/// Shows the running app's settings, or turns this process into the app.
[[nodiscard]] ExitStatus run(CommandContext &context);

} // namespace vantrel::AppCommands
