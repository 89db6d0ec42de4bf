#pragma once

#include "Vantrel/CommandLine/CommandArguments.h"

#include <QCoroTask>

namespace vantrel {

/// `vantrel open`: opens a profile in this process, whether the app runs or not.
class OpenCommand {
public:
    OpenCommand() = delete;

    [[nodiscard]] static CommandSyntax syntax();
    [[nodiscard]] static QCoro::Task<ExitStatus> run(CommandArguments arguments, CommandContext &context);
};

} // namespace vantrel
