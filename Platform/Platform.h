#pragma once

#include "Platform/BrowserData.h"
#include "Platform/Workspace.h"

#include <memory>

namespace vantrel {

/// The ports' implementations for the system that the program was built for, and for the session that it runs in.
struct Platform {
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<BrowserData> browserData;

    [[nodiscard]] static Platform create();
};

} // namespace vantrel
