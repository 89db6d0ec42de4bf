#include "Platform/Linux/DesktopWorkspace.h"
#include "Platform/Linux/XdgBrowserData.h"
#include "Platform/Platform.h"

using namespace Qt::StringLiterals;

namespace vantrel {

Platform Platform::create()
{
    const QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const InstallationFinder finder(Environment::from(variables));
    auto activation = std::make_unique<ActivationSource>();
    activation->noteToken(variables.value(u"XDG_ACTIVATION_TOKEN"_s));
    activation->noteStartupID(variables.value(u"DESKTOP_STARTUP_ID"_s));
    auto workspace = std::make_unique<DesktopWorkspace>(finder, variables, *activation);
    return {.activation = std::move(activation),
            .workspace = std::move(workspace),
            .browserData = std::make_unique<XdgBrowserData>(finder)};
}

} // namespace vantrel
