#include "Vantrel/CommandLine/CommandProgram.h"

#include <QCoreApplication>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QCoro::Task<> keepAndQuit(QCoro::Task<ExitStatus> command, std::optional<ExitStatus> &status)
{
    status = co_await std::move(command);
    QCoreApplication::quit();
}

} // namespace

int runCommandProgram(QCoro::Task<ExitStatus> (*command)(QStringList arguments, CommandContext &context),
                      const QStringList &arguments, CommandContext &context)
{
    std::optional<ExitStatus> status;
    const QCoro::Task<> task = keepAndQuit(command(arguments, context), status);
    // Most commands are done before there is any need to wait for events.
    if (!status)
        QCoreApplication::exec();
    if (!context.output.finish()) {
        context.output.message(u"The result could not be written."_s);
        return std::to_underlying(ExitStatus::failed);
    }
    return std::to_underlying(status.value_or(ExitStatus::failed));
}

} // namespace vantrel
