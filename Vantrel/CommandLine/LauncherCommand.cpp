#include "Vantrel/CommandLine/LauncherCommand.h"

#include "Vantrel/CommandLine/NamedProfile.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace

CommandSyntax LauncherCommand::syntax()
{
    return {
        .command = u"launcher"_s,
        //: Help of the command line.
        .description = Texts::tr("Makes a launcher for a profile, for menus, docks and desktops. Prints where it is."),
        //: Help of the command line.
        .switches = {{QString(removeSwitch), Texts::tr("Remove the profile's launcher instead.")}},
        .options = {{QString(outputOption), u"DIR"_s,
                     //: Help of the command line.
                     Texts::tr("Put it into this folder instead of the applications folder.")}},
        .required = {NamedProfile::syntax()},
        .repeated = {},
    };
}

QCoro::Task<ExitStatus> LauncherCommand::run(CommandArguments arguments, CommandContext &context)
{
    QStringList words;
    if (arguments.has(QString(removeSwitch)))
        words.append(u"--"_s + removeSwitch);
    if (const auto folder = arguments.value(QString(outputOption)))
        words.append(u"--"_s + outputOption + u'=' + *folder);
    context.output.message(context.launchers.become(words + QStringList(u"--"_s) + arguments.words).message);
    co_return ExitStatus::failed;
}

} // namespace vantrel
