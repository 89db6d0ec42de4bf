#include "Vantrel/BrowserDiscovery.h"

#include "VantrelKit/ChromiumDiscovery.h"
#include "VantrelKit/ProfileList.h"

#include <QSet>

#include <future>
#include <utility>
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
    std::vector<std::pair<QString, std::future<ProfileReader::Result>>> runs;
    for (const Browser &browser : browsers) {
        if (browser.family == BrowserFamily::safari)
            continue;
        runs.emplace_back(browser.bundleID, std::async(std::launch::async, [&reader, &data, id = browser.bundleID] {
                              return discoverBrowser(reader, data, id);
                          }));
    }
    DiscoveryResults results;
    for (auto &[bundleID, run] : runs)
        results.insert(bundleID, run.get());
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
