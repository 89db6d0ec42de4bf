#include "Vantrel/Launchers/LauncherTools.h"

#include "Vantrel/Launchers/BundleLauncherWriter.h"
#include "VantrelKit/Paths.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace vantrel {

LauncherTools::LauncherTools(LauncherPlatform platform)
    : signer_(std::make_unique<CodesignProgram>()),
      platform_(std::move(platform))
{
    if (platform_.writer)
        return;
    platform_.writer = std::make_unique<BundleLauncherWriter>(BundleLauncherWriter::Environment{
        .files = *platform_.files,
        .signer = *signer_,
        .stub = joinedPath(QCoreApplication::applicationDirPath(), u"LauncherStub"_s),
        .home = QDir::homePath(),
        .temporaryFolder = QDir::tempPath(),
        .version = QCoreApplication::applicationVersion(),
    });
}

} // namespace vantrel
