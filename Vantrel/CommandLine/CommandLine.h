#pragma once

#include "Vantrel/CommandLine/CommandContext.h"

#include <QCoroTask>
#include <QStringList>

namespace vantrel {

/// The program's commands. `arguments` are those behind the program's name.
[[nodiscard]] QCoro::Task<ExitStatus> runCommandLine(QStringList arguments, CommandContext &context);

} // namespace vantrel
