#pragma once

#include "Platform/BrowserData.h"

namespace vantrel {

/// The data folder of a Chromium browser at a path, with its layout, which is looked up there. Any thread.
[[nodiscard]] BrowserDataFolder chromiumDataFolder(const QString &bundleID, const QString &path);

} // namespace vantrel
