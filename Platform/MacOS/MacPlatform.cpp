#include "Platform/ApplicationSupportData.h"
#include "Platform/MacOS/BundleWorkspace.h"
#include "Platform/Platform.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace vantrel {

Platform Platform::create()
{
    // Qt would bring a program to the front as soon as it has started, one that starts with the session as well.
    qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
    auto workspace = std::make_unique<BundleWorkspace>();
    const QString root = QDir::homePath() + "/Library/Application Support"_L1;
    auto browserData = std::make_unique<ApplicationSupportData>(root, *workspace);
    return {.activation = std::make_unique<ActivationSource>(),
            .workspace = std::move(workspace),
            .browserData = std::move(browserData)};
}

} // namespace vantrel
