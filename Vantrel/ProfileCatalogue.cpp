#include "Vantrel/ProfileCatalogue.h"

#include <algorithm>

namespace vantrel {

QString ProfileCatalogue::defaultName(const Profile &profile)
{
    return profile.target.isPrivate() ? privateWindowName(profile.browserBundleID) : profile.name;
}

QString ProfileCatalogue::displayName(const Profile &profile) const
{
    if (const QString custom = customNames.value(profile.id()); !custom.isEmpty())
        return custom;
    return defaultName(profile);
}

QString ProfileCatalogue::title(const Profile &profile) const
{
    return displayTitle(profile, browsers, displayName(profile));
}

const Browser *ProfileCatalogue::browser(const Profile &profile) const
{
    const auto found = std::ranges::find(browsers, profile.browserBundleID, &Browser::bundleID);
    return found == browsers.end() ? nullptr : &*found;
}

bool ProfileCatalogue::isHidden(const Profile &profile) const
{
    return hidden.contains(profile.id());
}

QList<Profile> ProfileCatalogue::openable() const
{
    QList<Profile> result;
    std::ranges::copy_if(profiles, std::back_inserter(result),
                         [this](const Profile &profile) { return browser(profile) != nullptr; });
    return result;
}

} // namespace vantrel
