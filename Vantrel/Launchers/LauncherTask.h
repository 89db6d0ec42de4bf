#pragma once

#include "Platform/ApplicationIcons.h"
#include "Platform/LauncherWriter.h"
#include "Vantrel/CommandLine/CommandArguments.h"

#include <QCoroTask>

namespace vantrel {

/// What `vantrel launcher` does, in the program that can draw.
struct LauncherTask {
    LauncherWriter &writer;
    const ApplicationIcons &icons;

    /// The folder that the user names must be there.
    [[nodiscard]] QCoro::Task<ExitStatus> run(CommandArguments arguments, CommandContext &context) const;

private:
    using Folder = std::optional<QString>;

    [[nodiscard]] QCoro::Task<ExitStatus> make(QString name, Folder folder, CommandContext &context) const;
    [[nodiscard]] QCoro::Task<ExitStatus> remove(QString name, Folder folder, CommandContext &context) const;
};

} // namespace vantrel
