#include "Platform/Linux/DesktopWorkspace.h"
#include "Platform/Linux/XdgBrowserData.h"
#include "Platform/Platform.h"

namespace vantrel {

Platform Platform::create()
{
    const QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const InstallationFinder finder(Environment::from(variables));
    return {.workspace = std::make_unique<DesktopWorkspace>(finder, variables),
            .browserData = std::make_unique<XdgBrowserData>(finder)};
}

} // namespace vantrel
