#include "Platform/Linux/Installation.h"

#include "Platform/Linux/PackageData.h"

#include <algorithm>

namespace vantrel {

const Installation &preferred(const QList<Installation> &installations)
{
    if (installations.size() == 1)
        return installations.first();
    const auto hasProfiles = [](const Installation &installation) {
        const QString bundleID = text(installation.package->bundleID);
        return std::ranges::any_of(installation.dataFolders, [&bundleID](const BrowserDataFolder &folder) {
            return holdsProfiles(bundleID, folder.path);
        });
    };
    const auto found = std::ranges::find_if(installations, hasProfiles);
    return found == installations.end() ? installations.first() : *found;
}

} // namespace vantrel
