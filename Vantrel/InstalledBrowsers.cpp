#include "Vantrel/InstalledBrowsers.h"

#include "VantrelKit/KnownBrowsers.h"

namespace vantrel {

std::optional<Browser> installedBrowser(const Workspace &workspace, const QString &bundleID)
{
    const auto family = KnownBrowsers::family(bundleID);
    const auto application = family ? workspace.applicationWithBundleIdentifier(bundleID) : std::nullopt;
    if (!application)
        return std::nullopt;
    return Browser{bundleID, application->name, application->url, *family};
}

QList<Browser> installedBrowsers(const Workspace &workspace, const QStringList &bundleIDs)
{
    QList<Browser> browsers;
    for (const QString &bundleID : bundleIDs) {
        if (auto browser = installedBrowser(workspace, bundleID))
            browsers.append(*std::move(browser));
    }
    return sortedForDisplay(std::move(browsers));
}

} // namespace vantrel
