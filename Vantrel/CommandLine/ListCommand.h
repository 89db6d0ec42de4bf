#pragma once

#include "Vantrel/CommandLine/CommandArguments.h"

#include <QCoroTask>

namespace vantrel {

/// `vantrel list`: the profiles in the user's order, as they are now.
class ListCommand {
public:
    ListCommand() = delete;

    [[nodiscard]] static CommandSyntax syntax();
    [[nodiscard]] static QCoro::Task<ExitStatus> run(CommandArguments arguments, CommandContext &context);
};

} // namespace vantrel
