#include "Vantrel/CommandLine/OpenCommand.h"

#include "Vantrel/CommandLine/NamedProfile.h"
#include "Vantrel/CommandLine/OrderedJson.h"
#include "VantrelKit/LaunchCommand.h"

#include <QCoreApplication>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

using Step = QCoro::Task<std::expected<void, PlatformError>>;

Step printCommandLine(Browser browser, LaunchCommand command, CommandContext &context)
{
    const auto line = context.workspace.commandLine(browser.url, command.arguments);
    if (!line)
        co_return std::unexpected(line.error());
    context.output.line(jsonText(QJsonArray::fromStringList(*line)));
    co_return {};
}

} // namespace

CommandSyntax OpenCommand::syntax()
{
    return {
        .command = u"open"_s,
        //: Help of the command line.
        .description = Texts::tr("Opens a profile, with web links if you name some."),
        //: Help of the command line.
        .switches = {{u"dry-run"_s, Texts::tr("Print what would be started instead, a JSON array a line.")}},
        .required = {NamedProfile::syntax()},
        //: Help of the command line.
        .repeated = {u"URL"_s, Texts::tr("Web links or files to open in it.")},
    };
}

QCoro::Task<ExitStatus> OpenCommand::run(CommandArguments arguments, CommandContext &context)
{
    const auto named = NamedProfile::find(arguments.words, context);
    if (!named)
        co_return named.error();
    const auto commands = LaunchCommand::commands(named->browser.bundleID, named->links, named->profile.target);
    if (commands.isEmpty()) {
        //: Error of the command line.
        context.output.message(Texts::tr("Safari's profiles can't be opened from the command line yet."));
        co_return ExitStatus::failed;
    }
    for (const LaunchCommand &command : commands) {
        Step task = arguments.has(u"dry-run")
                        ? printCommandLine(named->browser, command, context)
                        : context.workspace.openApplication(named->browser.url, command.arguments);
        const auto step = co_await std::move(task);
        if (!step) {
            context.output.message(step.error().message);
            co_return ExitStatus::failed;
        }
    }
    co_return ExitStatus::done;
}

} // namespace vantrel
