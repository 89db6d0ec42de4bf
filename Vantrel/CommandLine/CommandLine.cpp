#include "Vantrel/CommandLine/CommandLine.h"

#include "Vantrel/CommandLine/AppCommands.h"
#include "Vantrel/CommandLine/CommandArguments.h"
#include "Vantrel/CommandLine/DoctorCommand.h"
#include "Vantrel/CommandLine/LauncherCommand.h"
#include "Vantrel/CommandLine/LinkCommand.h"
#include "Vantrel/CommandLine/ListCommand.h"
#include "Vantrel/CommandLine/OpenCommand.h"
#include "Vantrel/CommandLine/ProfileMatcher.h"
#include "VantrelKit/PrintableText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct Command {
    CommandSyntax (*syntax)();
    QCoro::Task<ExitStatus> (*run)(CommandArguments, CommandContext &);
};

constexpr std::array commands{
    Command{&ListCommand::syntax, &ListCommand::run},     Command{&OpenCommand::syntax, &OpenCommand::run},
    Command{&LinkCommand::syntax, &LinkCommand::run},     Command{&LauncherCommand::syntax, &LauncherCommand::run},
    Command{&DoctorCommand::syntax, &DoctorCommand::run},
};

QString row(const QString &command, const QString &description)
{
    return u"\n  "_s + command.leftJustified(10) + description;
}

QString overview()
{
    //: Help of the command line.
    QString text = Texts::tr("Usage: %1").arg(u"vantrel [COMMAND …]"_s) + u"\n\n"_s +
                   //: Help of the command line.
                   Texts::tr("Opens a chosen profile of a chosen web browser in one step.") + u"\n"_s;
    for (const Command &command : commands) {
        const CommandSyntax syntax = command.syntax();
        text += row(syntax.command, QString(syntax.description).replace(u'\n', u' '));
    }
    //: Help of the command line.
    text += row(u"settings"_s, Texts::tr("Opens the app's settings window."));
    //: Help of the command line.
    text += row(u"menu"_s, Texts::tr("Opens the app's menu at the pointer."));
    //: Help of the command line.
    text += row(u"quit"_s, Texts::tr("Ends the app."));
    text += u'\n';
    //: Help of the command line. The placeholder is a command.
    text += u'\n' + Texts::tr("“%1” alone starts the app, or shows its settings when it is running.").arg(u"vantrel"_s);
    //: Help of the command line. The placeholder is a command.
    text += u'\n' + Texts::tr("“%1” hands links to the app.").arg(u"vantrel LINK…"_s);
    //: Help of the command line.
    return text + u"\n\n"_s + Texts::tr("“vantrel COMMAND --help” tells more. “vantrel --version” prints the version.");
}

ExitStatus wrongUsage(const QString &reason, Output &output)
{
    //: Error of the command line. First: what is wrong; second: a command.
    output.message(Texts::tr("%1\nTry “%2”.").arg(reason, u"vantrel --help"_s));
    return ExitStatus::wrongUsage;
}

ExitStatus withoutCommand(const QStringList &arguments, CommandContext &context)
{
    Output &output = context.output;
    if (arguments.isEmpty())
        return AppCommands::run(context);
    const QString &first = arguments.first();
    if (first == "--help"_L1 || first == "-h"_L1 || first == "help"_L1) {
        output.line(overview());
        return ExitStatus::done;
    }
    if (first == "--version"_L1) {
        output.line(u"vantrel "_s + QCoreApplication::applicationVersion());
        return ExitStatus::done;
    }
    if (std::ranges::all_of(arguments, isProfileLink))
        return AppCommands::openLinks(arguments, context);
    if (AppCommands::isAction(first) && arguments.size() == 1)
        return AppCommands::act(first, context);
    //: Error of the command line. The placeholder is what the user wrote.
    return wrongUsage(Texts::tr("There is no command “%1”.").arg(printable(first)), output);
}

} // namespace

QCoro::Task<ExitStatus> runCommandLine(QStringList arguments, CommandContext &context)
{
    const auto command = std::ranges::find_if(commands, [&arguments](const Command &candidate) {
        return !arguments.isEmpty() && candidate.syntax().command == arguments.first();
    });
    if (command == commands.end())
        co_return withoutCommand(arguments, context);
    auto parsed = CommandArguments::parse(command->syntax(), arguments.sliced(1), context.output);
    if (!parsed)
        co_return parsed.error();
    co_return co_await command->run(*std::move(parsed), context);
}

} // namespace vantrel
