#include "VantrelKit/ProfileList.h"

#include "VantrelKit/KnownBrowsers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel::ProfileList {
namespace {

QList<Profile> groupOf(const QString &browserBundleID, const QList<Profile> &profiles)
{
    QList<Profile> group;
    std::ranges::copy_if(profiles, std::back_inserter(group), [&browserBundleID](const Profile &profile) {
        return profile.browserBundleID == browserBundleID;
    });
    return group;
}

bool isPrivate(const Profile &profile)
{
    return profile.target.isPrivate();
}

/// Profiles by id, the first of those that share one.
QHash<QString, const Profile *> indexed(const QList<Profile> &profiles)
{
    QHash<QString, const Profile *> index;
    index.reserve(profiles.size());
    for (const Profile &profile : profiles) {
        if (const Profile *&place = index[profile.id()]; !place)
            place = &profile;
    }
    return index;
}

QList<Profile> mergedGroup(const QList<Profile> &old, const QList<Profile> &fresh)
{
    const QHash<QString, const Profile *> freshByID = indexed(fresh);
    QSet<QString> known;
    QList<Profile> group;
    for (const Profile &profile : old) {
        const QString id = profile.id();
        known.insert(id);
        if (const Profile *record = freshByID.value(id))
            group.append(*record);
    }
    QList<Profile> added;
    QList<Profile> addedPrivate;
    for (const Profile &profile : fresh) {
        if (!known.contains(profile.id()))
            (isPrivate(profile) ? addedPrivate : added).append(profile);
    }
    const auto insertion = std::ranges::find_if(group, isPrivate) - group.begin();
    return group.first(insertion) + added + group.sliced(insertion) + addedPrivate;
}

/// What the link itself says about a profile that isn't in the list.
std::optional<Profile> madeFrom(const LaunchLink &link)
{
    const auto family = KnownBrowsers::family(link.browserBundleID);
    const QString prefix = link.browserBundleID + u'/';
    if (link.profileID && family && link.profileID->startsWith(prefix)) {
        if (auto target = ProfileTarget::fromKey(link.profileID->sliced(prefix.size()), *family))
            return Profile{link.browserBundleID, link.profileName, *std::move(target)};
    }
    if (family == BrowserFamily::safari && !link.profileName.isEmpty())
        return Profile{link.browserBundleID, link.profileName, ProfileTarget::safariProfile(link.profileName, -1)};
    return std::nullopt;
}

} // namespace

QList<Profile> splice(const QString &browserBundleID, const QList<Profile> &group, const QList<Profile> &current)
{
    QList<Profile> result;
    result.reserve(current.size() + group.size());
    bool placed = false;
    for (const Profile &profile : current) {
        if (profile.browserBundleID != browserBundleID) {
            result.append(profile);
        } else if (!placed) {
            result.append(group);
            placed = true;
        }
    }
    if (!placed)
        result.append(group);
    return result;
}

QList<Profile> merge(const QList<Profile> &fresh, const QString &browserBundleID, const QList<Profile> &current)
{
    return splice(browserBundleID, mergedGroup(groupOf(browserBundleID, current), fresh), current);
}

QList<Profile> move(const QList<Profile> &current, const QString &browserBundleID, const QSet<qsizetype> &positions,
                    qsizetype destination)
{
    const QList<Profile> group = groupOf(browserBundleID, current);
    QList<Profile> moving;
    QList<Profile> staying;
    qsizetype insertion = std::clamp(destination, qsizetype{0}, group.size());
    const qsizetype end = insertion;
    for (qsizetype row = 0; row < group.size(); ++row) {
        const bool moves = positions.contains(row);
        (moves ? moving : staying).append(group[row]);
        if (moves && row < end)
            --insertion;
    }
    return splice(browserBundleID, staying.first(insertion) + moving + staying.sliced(insertion), current);
}

std::optional<Profile> find(const LaunchLink &link, const QList<Profile> &profiles,
                            const QHash<QString, QString> &customNames)
{
    if (link.profileID) {
        const auto sameID = std::ranges::find(profiles, *link.profileID, &Profile::id);
        if (sameID != profiles.end())
            return *sameID;
    }
    const QList<Profile> group = groupOf(link.browserBundleID, profiles);
    const auto sameName = std::ranges::find_if(
        group, [&link](const Profile &profile) { return !isPrivate(profile) && profile.name == link.profileName; });
    if (sameName != group.end())
        return *sameName;
    const auto sameCustomName = std::ranges::find_if(group, [&](const Profile &profile) {
        const auto name = customNames.constFind(profile.id());
        return name != customNames.constEnd() && *name == link.profileName;
    });
    if (sameCustomName != group.end())
        return *sameCustomName;
    if (link.profileName == "Private"_L1 || (link.profileID && link.profileID->endsWith("/private"_L1)))
        return Profile::privateWindow(link.browserBundleID);
    return madeFrom(link);
}

} // namespace vantrel::ProfileList
