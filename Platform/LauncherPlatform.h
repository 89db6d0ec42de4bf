#pragma once

#include "Platform/ApplicationIcons.h"
#include "Platform/FileSystem.h"
#include "Platform/LauncherWriter.h"

#include <memory>

namespace vantrel {

/// The ports that making launchers needs, beyond those of the command line.
struct LauncherPlatform {
    std::unique_ptr<FileSystem> files;
    /// Null where launchers are application bundles, which are written by code that all systems share.
    std::unique_ptr<LauncherWriter> writer;
    std::unique_ptr<ApplicationIcons> icons;

    /// Needs a QGuiApplication.
    [[nodiscard]] static LauncherPlatform create();
};

} // namespace vantrel
