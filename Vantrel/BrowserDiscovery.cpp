#include "Vantrel/BrowserDiscovery.h"

#include "Vantrel/SideBySide.h"
#include "VantrelKit/ChromiumDiscovery.h"
#include "VantrelKit/ProfileList.h"

#include <QSet>

#include <vector>

namespace vantrel {
namespace {

ProfileReader::Result discoverFolder(const ProfileReader &reader, const QString &bundleID,
                                     const BrowserDataFolder &folder)
{
    if (folder.layout == BrowserDataFolder::Layout::singleProfile)
        return chromiumRootProfile(folder.path, reader.readPicture);
    return reader.discoverProfiles(bundleID, folder.path);
}

Profile toProfile(const DiscoveredProfile &found, const Browser &browser)
{
    const bool isFirefox = browser.family == BrowserFamily::firefox;
    return {browser.bundleID, found.name,
            isFirefox ? ProfileTarget::firefox(found.folder) : ProfileTarget::chromium(found.folder), found.avatarPNG};
}

QList<Profile> knownProfiles(const QList<Profile> &profiles, const QString &bundleID)
{
    QList<Profile> known;
    for (const Profile &profile : profiles) {
        if (profile.browserBundleID == bundleID && !profile.target.isPrivate())
            known.append(profile);
    }
    return known;
}

struct Run {
    QString bundleID;
    ProfileReader::Result result;
};

/// Those that wait for another program come first, so that the others are read in the meantime.
std::vector<Run> plannedRuns(const QList<Browser> &browsers)
{
    std::vector<Run> runs;
    for (const BrowserFamily family : {BrowserFamily::firefox, BrowserFamily::chromium}) {
        for (const Browser &browser : browsers) {
            if (browser.family == family)
                runs.push_back({browser.bundleID, {}});
        }
    }
    return runs;
}

} // namespace

ProfileReader::Result discoverBrowser(const ProfileReader &reader, const BrowserData &data, const QString &bundleID)
{
    QList<DiscoveredProfile> profiles;
    QSet<QString> folders;
    for (const BrowserDataFolder &folder : data.dataFolders(bundleID)) {
        const auto found = discoverFolder(reader, bundleID, folder);
        if (!found)
            return found;
        for (const DiscoveredProfile &profile : *found) {
            if (!folders.contains(profile.folder))
                profiles.append(profile);
            folders.insert(profile.folder);
        }
    }
    return profiles;
}

DiscoveryResults discoverBrowsers(const ProfileReader &reader, const BrowserData &data, const QList<Browser> &browsers)
{
    std::vector<Run> runs = plannedRuns(browsers);
    sideBySide(runs.size(),
               [&](size_t index) { runs[index].result = discoverBrowser(reader, data, runs[index].bundleID); });
    DiscoveryResults results;
    for (const Run &run : runs)
        results.insert(run.bundleID, run.result);
    return results;
}

QList<Profile> withResults(const DiscoveryResults &results, const QList<Browser> &browsers, QList<Profile> profiles)
{
    for (const Browser &browser : browsers) {
        QList<Profile> fresh;
        const auto result = results.constFind(browser.bundleID);
        if (result != results.constEnd() && result->has_value()) {
            for (const DiscoveredProfile &found : **result)
                fresh.append(toProfile(found, browser));
        } else {
            fresh = knownProfiles(profiles, browser.bundleID);
        }
        fresh.append(Profile::privateWindow(browser.bundleID));
        profiles = ProfileList::merge(fresh, browser.bundleID, profiles);
    }
    return profiles;
}

} // namespace vantrel
