#include "Vantrel/CommandLine/AppCommands.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel::AppCommands {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

const QString quitAction = u"quit"_s;

ExitStatus failed(const PlatformError &error, CommandContext &context)
{
    context.output.message(error.message);
    return ExitStatus::failed;
}

ExitStatus sendOrStart(const InstanceRequest &request, CommandContext &context)
{
    const auto taken = context.app.send(request);
    if (!taken)
        return failed(taken.error(), context);
    if (*taken)
        return ExitStatus::done;
    const auto started = context.app.start(request);
    return started ? ExitStatus::done : failed(started.error(), context);
}

} // namespace

bool isAction(const QString &word)
{
    return word == "settings"_L1 || word == "menu"_L1 || word == quitAction;
}

ExitStatus act(const QString &action, CommandContext &context)
{
    const InstanceRequest request{.kind = InstanceRequest::Kind::action, .action = action};
    if (action != quitAction)
        return sendOrStart(request, context);
    const auto taken = context.app.send(request);
    if (!taken)
        return failed(taken.error(), context);
    if (!*taken) {
        //: Error of the command line.
        context.output.message(Texts::tr("Vantrel isn't running."));
        return ExitStatus::failed;
    }
    return ExitStatus::done;
}

ExitStatus openLinks(const QStringList &links, CommandContext &context)
{
    return sendOrStart({.kind = InstanceRequest::Kind::open, .links = links}, context);
}

ExitStatus run(CommandContext &context)
{
    const auto taken = context.app.send({});
    if (!taken)
        return failed(taken.error(), context);
    return *taken ? ExitStatus::done : failed(context.app.become(), context);
}

} // namespace vantrel::AppCommands
