#include "Vantrel/CommandLine/OpenCommand.h"

#include "Vantrel/CommandLine/AppCommands.h"
#include "Vantrel/CommandLine/NamedProfile.h"
#include "Vantrel/CommandLine/OrderedJson.h"
#include "Vantrel/CommandLine/UserLinks.h"
#include "VantrelKit/LaunchCommand.h"
#include "VantrelKit/LaunchLink.h"

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

QCoro::Task<ExitStatus> open(CommandArguments arguments, CommandContext &context)
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

/// Nobody reads what a program writes that was started from a menu. The app has a window for it: handed what could not
/// be opened, it fails in the same way and says so there.
void showFailure(const QStringList &words, CommandContext &context)
{
    auto link = LaunchLink::parse(words.first());
    if (!link)
        return;
    link->urls += UserLinks::parse(words.sliced(1), context.workingDirectory).openable;
    std::ignore = AppCommands::openLinks({link->text()}, context);
}

} // namespace

CommandSyntax OpenCommand::syntax()
{
    return {
        .command = u"open"_s,
        //: Help of the command line.
        .description = Texts::tr("Opens a profile, with web links if you name some."),
        //: Help of the command line.
        .switches = {{u"dry-run"_s, Texts::tr("Print what would be started instead, a JSON array a line.")},
                     //: Help of the command line.
                     {u"alert"_s,
                      Texts::tr("Let the app show a failure. PROFILE must be a link; launchers use this.")}},
        .required = {NamedProfile::syntax()},
        //: Help of the command line.
        .repeated = {u"URL"_s, Texts::tr("Web links or files to open in it.")},
    };
}

QCoro::Task<ExitStatus> OpenCommand::run(CommandArguments arguments, CommandContext &context)
{
    const ExitStatus status = co_await open(arguments, context);
    if (status == ExitStatus::failed && arguments.has(u"alert"))
        showFailure(arguments.words, context);
    co_return status;
}

} // namespace vantrel
