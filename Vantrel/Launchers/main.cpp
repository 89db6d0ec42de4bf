#include "Platform/Platform.h"
#include "Vantrel/CommandLine/CommandProgram.h"
#include "Vantrel/CommandLine/LauncherCommand.h"
#include "Vantrel/Launchers/LauncherTask.h"
#include "Vantrel/Launchers/LauncherTools.h"
#include "Vantrel/SavedState.h"
#include "VantrelKit/AvatarThumbnail.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

QCoro::Task<ExitStatus> runLauncherCommand(QStringList arguments, CommandContext &context)
{
    auto parsed = CommandArguments::parse(LauncherCommand::syntax(), arguments, context.output);
    if (!parsed)
        co_return parsed.error();
    const LauncherTools tools(LauncherPlatform::create());
    const LauncherTask task{tools.writer(), tools.icons()};
    co_return co_await task.run(*std::move(parsed), context);
}

} // namespace

/// `vantrel launcher` turns into this program. It draws without a display.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt has to say about the session is of no interest to whoever gave the command.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"Vantrel"_s);
    QGuiApplication::setApplicationVersion(QStringLiteral(VANTREL_VERSION));

    const Platform platform = Platform::create();
    ProfileReader reader;
    reader.readPicture = avatarThumbnailPNG;
    const std::unique_ptr<AppProcess> app = AppProcess::create();
    const std::unique_ptr<LauncherProgram> launchers = LauncherProgram::create();
    Output output(stdout, stderr);
    CommandContext context{
        .workspace = *platform.workspace,
        .browserData = *platform.browserData,
        .reader = reader,
        .app = *app,
        .launchers = *launchers,
        .savedStatePath = SavedState::defaultPath(),
        .workingDirectory = QDir::currentPath(),
        .output = output,
    };
    return runCommandProgram(runLauncherCommand, QCoreApplication::arguments().sliced(1), context);
}
