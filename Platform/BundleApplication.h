#pragma once

#include "Platform/Workspace.h"

namespace vantrel {

/// The application in a bundle: its name is the bundle's, without what stands behind the last dot. The URL is that of a
/// folder, with or without a slash at its end, and has none afterwards.
[[nodiscard]] Application bundleApplication(const QUrl &bundle);

} // namespace vantrel
