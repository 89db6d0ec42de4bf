#pragma once

#include "Vantrel/CommandLine/CommandContext.h"

#include <QCoroTask>
#include <QStringList>

namespace vantrel {

/// A program that runs one command: the status to end with. Needs an application object, whose event loop is entered
/// when the command has to wait.
[[nodiscard]] int runCommandProgram(QCoro::Task<ExitStatus> (*command)(QStringList arguments, CommandContext &context),
                                    const QStringList &arguments, CommandContext &context);

} // namespace vantrel
