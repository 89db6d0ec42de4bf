#pragma once

#include "Vantrel/CommandLine/CommandArguments.h"

#include <QCoroTask>

namespace vantrel {

/// `vantrel launcher`: makes or removes the launcher of a profile. Here it is only understood; the program that draws
/// and writes it is started in this process' place.
class LauncherCommand {
public:
    LauncherCommand() = delete;

    static constexpr QLatin1StringView removeSwitch{"remove"};
    static constexpr QLatin1StringView outputOption{"output"};

    [[nodiscard]] static CommandSyntax syntax();
    [[nodiscard]] static QCoro::Task<ExitStatus> run(CommandArguments arguments, CommandContext &context);
};

} // namespace vantrel
