#pragma once

#include "Vantrel/CommandLine/CommandArguments.h"

#include <QCoroTask>

namespace vantrel {

/// `vantrel link`: prints the link that opens a profile.
class LinkCommand {
public:
    LinkCommand() = delete;

    [[nodiscard]] static CommandSyntax syntax();
    [[nodiscard]] static QCoro::Task<ExitStatus> run(CommandArguments arguments, CommandContext &context);
};

} // namespace vantrel
