#include "Vantrel/InstalledBrowsers.h"

#include "VantrelKit/KnownBrowsers.h"

namespace vantrel {

QList<Browser> installedBrowsers(const Workspace &workspace, const QStringList &bundleIDs)
{
    QList<Browser> browsers;
    for (const QString &bundleID : bundleIDs) {
        const auto family = KnownBrowsers::family(bundleID);
        if (!family)
            continue;
        if (const auto application = workspace.applicationWithBundleIdentifier(bundleID))
            browsers.append({bundleID, application->name, application->url, *family});
    }
    return sortedForDisplay(std::move(browsers));
}

} // namespace vantrel
