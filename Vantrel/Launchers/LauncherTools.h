#pragma once

#include "Platform/CodesignProgram.h"
#include "Platform/LauncherPlatform.h"

#include <memory>

namespace vantrel {

/// What makes launchers in the form that the system has for them, else application bundles. Main thread only; its parts
/// live as long as it.
class LauncherTools {
public:
    explicit LauncherTools(LauncherPlatform platform);

    [[nodiscard]] LauncherWriter &writer() const { return *platform_.writer; }
    [[nodiscard]] FileSystem &files() const { return *platform_.files; }
    [[nodiscard]] const ApplicationIcons &icons() const { return *platform_.icons; }

private:
    /// Bundles' writer refers to it, wherever this is moved to.
    std::unique_ptr<CodesignProgram> signer_;
    LauncherPlatform platform_;
};

} // namespace vantrel
