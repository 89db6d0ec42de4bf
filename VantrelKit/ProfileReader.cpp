#include "VantrelKit/ProfileReader.h"

#include "VantrelKit/ChromiumDiscovery.h"
#include "VantrelKit/FirefoxDiscovery.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/Paths.h"

namespace vantrel {

std::optional<QString> ProfileReader::dataFolder(const QString &bundleID) const
{
    const auto folder = KnownBrowsers::dataFolder(bundleID);
    return folder ? std::optional(joinedPath(appSupportRoot, *folder)) : std::nullopt;
}

ProfileReader::Result ProfileReader::discoverProfiles(const QString &bundleID) const
{
    const auto folder = dataFolder(bundleID);
    return folder ? discoverProfiles(bundleID, *folder) : Result();
}

ProfileReader::Result ProfileReader::discoverProfiles(const QString &bundleID, const QString &dataFolder) const
{
    const auto family = KnownBrowsers::family(bundleID);
    if (family == BrowserFamily::chromium)
        return chromiumProfiles(dataFolder, readPicture);
    if (family == BrowserFamily::firefox)
        return firefoxProfiles(dataFolder, sqlite3);
    return {};
}

} // namespace vantrel
