#include "Platform/LauncherPlatform.h"
#include "Platform/LocalFileSystem.h"
#include "Platform/MacOS/BundleIcons.h"

namespace vantrel {

LauncherPlatform LauncherPlatform::create()
{
    return {.files = std::make_unique<LocalFileSystem>(), .writer = nullptr, .icons = std::make_unique<BundleIcons>()};
}

} // namespace vantrel
