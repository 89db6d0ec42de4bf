#pragma once

#include "Platform/AppProcess.h"
#include "Platform/BrowserData.h"
#include "Platform/LauncherProgram.h"
#include "Platform/Workspace.h"
#include "Vantrel/CommandLine/Output.h"
#include "VantrelKit/ProfileReader.h"

#include <QString>

namespace vantrel {

/// How a command ended, for the shell.
enum class ExitStatus : int { done = 0, failed = 1, wrongUsage = 2 };

/// What a command works with. Everything outlives the command.
struct CommandContext {
    Workspace &workspace;
    const BrowserData &browserData;
    const ProfileReader &reader;
    AppProcess &app;
    LauncherProgram &launchers;
    /// The file with the user's order, names and hidden profiles. Commands only read it.
    QString savedStatePath;
    /// Where relative file names that the user gives are looked for.
    QString workingDirectory;
    Output &output;
};

} // namespace vantrel
