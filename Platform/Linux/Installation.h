#pragma once

#include "Platform/BrowserData.h"
#include "Platform/Linux/BrowserPackage.h"
#include "Platform/Linux/DesktopEntry.h"

namespace vantrel {

/// A browser as it is installed on this machine.
struct Installation {
    const BrowserPackage *package = nullptr;
    DesktopEntry entry;
    QList<BrowserDataFolder> dataFolders;
};

/// The installation that is used among several of one browser: the first that has profiles, else the first.
[[nodiscard]] const Installation &preferred(const QList<Installation> &installations);

} // namespace vantrel
