#include "Platform/ApplicationSupportData.h"

#include "Platform/ChromiumDataFolder.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/Paths.h"

namespace vantrel {

QList<BrowserDataFolder> ApplicationSupportData::dataFolders(const QString &bundleID) const
{
    const auto folder = KnownBrowsers::dataFolder(bundleID);
    if (!folder || !workspace_.applicationWithBundleIdentifier(bundleID))
        return {};
    const QString path = joinedPath(root_, *folder);
    if (KnownBrowsers::family(bundleID) == BrowserFamily::chromium)
        return {chromiumDataFolder(bundleID, path)};
    return {{.path = path}};
}

} // namespace vantrel
