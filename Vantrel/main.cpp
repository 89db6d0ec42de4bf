#include "Platform/Platform.h"
#include "Vantrel/CommandLine/CommandLine.h"
#include "Vantrel/SavedState.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QDir>

#include <cstdio>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

QCoro::Task<> runAndQuit(CommandContext &context, std::optional<ExitStatus> &status)
{
    status = co_await runCommandLine(QCoreApplication::arguments().sliced(1), context);
    QCoreApplication::quit();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Vantrel"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VANTREL_VERSION));

    const Platform platform = Platform::create();
    const ProfileReader reader;
    const std::unique_ptr<AppProcess> app = AppProcess::create();
    Output output(stdout, stderr);
    CommandContext context{
        .workspace = *platform.workspace,
        .browserData = *platform.browserData,
        .reader = reader,
        .app = *app,
        .savedStatePath = SavedState::defaultPath(),
        .workingDirectory = QDir::currentPath(),
        .output = output,
    };

    std::optional<ExitStatus> status;
    const QCoro::Task<> task = runAndQuit(context, status);
    // Most commands are done before there is any need to wait for events.
    if (!status)
        QCoreApplication::exec();
    if (!output.finish()) {
        output.message(u"The result could not be written."_s);
        return std::to_underlying(ExitStatus::failed);
    }
    return std::to_underlying(status.value_or(ExitStatus::failed));
}
