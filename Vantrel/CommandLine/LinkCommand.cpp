#include "Vantrel/CommandLine/LinkCommand.h"

#include "Vantrel/CommandLine/NamedProfile.h"
#include "VantrelKit/LaunchLink.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace

CommandSyntax LinkCommand::syntax()
{
    return {
        .command = u"link"_s,
        //: Help of the command line.
        .description = Texts::tr("Prints the link that opens a profile, for other programs and scripts."),
        .switches = {},
        .required = {NamedProfile::syntax()},
        //: Help of the command line.
        .repeated = {u"URL"_s, Texts::tr("Web links to be opened in the profile.")},
    };
}

QCoro::Task<ExitStatus> LinkCommand::run(CommandArguments arguments, CommandContext &context)
{
    const auto named = NamedProfile::find(arguments.words, context);
    if (!named)
        co_return named.error();
    LaunchLink link = LaunchLink::forProfile(named->profile);
    link.urls = named->links;
    context.output.line(link.text());
    co_return ExitStatus::done;
}

} // namespace vantrel
