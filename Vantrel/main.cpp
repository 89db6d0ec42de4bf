#include "Platform/Platform.h"
#include "Vantrel/CommandLine/CommandLine.h"
#include "Vantrel/CommandLine/CommandProgram.h"
#include "Vantrel/SavedState.h"
#include "Vantrel/Translations/Translations.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vantrel;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Vantrel"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VANTREL_VERSION));
    Translations translations;
    // What other programs read doesn't change with the user's language.
    if (!QCoreApplication::arguments().contains(u"--json"_s))
        translations.install(Translations::userLanguages());

    const Platform platform = Platform::create();
    const ProfileReader reader;
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
    return runCommandProgram(runCommandLine, QCoreApplication::arguments().sliced(1), context);
}
