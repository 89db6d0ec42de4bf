#pragma once

#include "Vantrel/CommandLine/CommandArguments.h"

#include <QCoroTask>

namespace vantrel {

/// `vantrel doctor`: what is known about each browser, found or not.
class DoctorCommand {
public:
    DoctorCommand() = delete;

    [[nodiscard]] static CommandSyntax syntax();
    [[nodiscard]] static QCoro::Task<ExitStatus> run(CommandArguments arguments, CommandContext &context);
};

} // namespace vantrel
