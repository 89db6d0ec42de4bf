#include "Platform/LauncherPlatform.h"
#include "Platform/Linux/Launchers/DesktopApplicationIcons.h"
#include "Platform/Linux/Launchers/DesktopLauncherWriter.h"
#include "Platform/LocalFileSystem.h"
#include "Platform/OwnPrograms.h"

using namespace Qt::StringLiterals;

namespace vantrel {

LauncherPlatform LauncherPlatform::create()
{
    const QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const Environment environment = Environment::from(variables);
    auto files = std::make_unique<LocalFileSystem>();
    auto writer = std::make_unique<DesktopLauncherWriter>(*files, environment.dataHome,
                                                          commandProgram(variables.value(u"PATH"_s)));
    return {.files = std::move(files),
            .writer = std::move(writer),
            .icons = std::make_unique<DesktopApplicationIcons>(environment)};
}

} // namespace vantrel
