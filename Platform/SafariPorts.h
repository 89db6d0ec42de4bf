#pragma once

#include "Platform/AccessibilityTrust.h"
#include "Platform/AutomationPermission.h"
#include "Platform/SafariBridge.h"
#include "Platform/ScriptRunner.h"

#include <memory>

namespace vantrel {

/// What it takes to drive Safari. All or none: none of these is null.
struct SafariPorts {
    std::unique_ptr<ScriptRunner> scripts;
    std::unique_ptr<SafariBridge> bridge;
    std::unique_ptr<AccessibilityTrust> accessibility;
    std::unique_ptr<AutomationPermission> automation;
};

} // namespace vantrel
