#pragma once

#include "Platform/ActivationSource.h"
#include "Platform/BrowserData.h"
#include "Platform/Workspace.h"

#include <memory>

namespace vantrel {

/// The ports' implementations for the system that the program was built for, and for the session that it runs in.
struct Platform {
    /// The workspace takes from it what the programs that it starts need to come to the front. At first it holds what
    /// was meant for this process.
    std::unique_ptr<ActivationSource> activation;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<BrowserData> browserData;

    [[nodiscard]] static Platform create();
};

} // namespace vantrel
