#include "Vantrel/ProfileStore.h"

#include "Vantrel/SavedState.h"
#include "VantrelKit/ProfileList.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString joined(const QSet<qsizetype> &positions)
{
    QList<qsizetype> sorted = positions.values();
    std::ranges::sort(sorted);
    QStringList texts;
    for (const qsizetype position : std::as_const(sorted))
        texts.append(QString::number(position));
    return texts.join(u',');
}

Profile toProfile(const ProfileTarget::SafariProfile &found, const QString &bundleID)
{
    return {bundleID, found.name, ProfileTarget::safariProfile(found.name, found.index)};
}

} // namespace

ProfileStore::ProfileStore(QString savedStatePath, LogSink &log, Liveness liveness)
    : savedStatePath_(std::move(savedStatePath)),
      log_(log, u"Profiles"_s),
      liveness_(liveness)
{
}

QList<Profile> ProfileStore::profilesOf(const QString &browserBundleID) const
{
    QList<Profile> group;
    std::ranges::copy_if(profiles(), std::back_inserter(group), [&browserBundleID](const Profile &profile) {
        return profile.browserBundleID == browserBundleID;
    });
    return group;
}

QList<ProfileStore::MenuSection> ProfileStore::menuSections() const
{
    QHash<QString, QList<Profile>> shown;
    for (const Profile &profile : profiles()) {
        if (!catalogue_.isHidden(profile))
            shown[profile.browserBundleID].append(profile);
    }
    QList<MenuSection> sections;
    for (const Browser &browser : browsers()) {
        if (const auto group = shown.constFind(browser.bundleID); group != shown.constEnd())
            sections.append({browser, *group});
    }
    return sections;
}

void ProfileStore::load()
{
    if (!isLive())
        return;
    auto saved = SavedState::read(savedStatePath_);
    if (!saved) {
        log_.error("Saved profiles unreadable: %{public}s"_L1, {saved.error().message()});
        hasUnreadableFile_ = true;
        return;
    }
    const QFileInfo file(savedStatePath_);
    hasUnreadableFile_ = file.exists() && !file.isReadable();
    catalogue_.profiles = std::move(saved->profiles);
    catalogue_.hidden = std::move(saved->hidden);
    catalogue_.customNames = std::move(saved->customNames);
    searchedSafari_ = std::move(saved->searchedSafari);
    Q_EMIT profilesChanged();
    Q_EMIT changed();
}

bool ProfileStore::begin()
{
    return isLive() && !std::exchange(started_, true);
}

void ProfileStore::setBrowsers(const QList<Browser> &browsers)
{
    catalogue_.browsers = browsers;
    Q_EMIT changed();
}

void ProfileStore::apply(const DiscoveryResults &results)
{
    for (const Browser &browser : browsers()) {
        if (const auto result = results.constFind(browser.bundleID); result != results.constEnd())
            note(browser, *result);
    }
    const QList<Profile> merged = withResults(results, browsers(), profiles());
    setProfiles(merged);
    save();
    Q_EMIT changed();
}

void ProfileStore::note(const Browser &browser, const ProfileReader::Result &result)
{
    const QString &bundleID = browser.bundleID;
    if (result) {
        accessDenied_.remove(bundleID);
        problems_.remove(bundleID);
        log_.notice("%{public}s: %ld profiles"_L1, {bundleID, qint64{result->size()}});
        return;
    }
    switch (result.error().kind) {
    case ProfileDiscoveryError::Kind::accessDenied:
        accessDenied_.insert(bundleID);
        log_.notice("%{public}s: access to its profiles denied"_L1, {bundleID});
        return;
    case ProfileDiscoveryError::Kind::readFailed:
        problems_.insert(bundleID, result.error().reason);
        log_.error("%{public}s: profiles unreadable: %{public}s"_L1, {bundleID, result.error().reason});
        return;
    }
}

bool ProfileStore::beginSafariSearch(const QString &bundleID)
{
    if (searching_.contains(bundleID))
        return false;
    searching_.insert(bundleID);
    Q_EMIT changed();
    return true;
}

void ProfileStore::endSafariSearch(const QString &bundleID, const SafariSearch::Result &found)
{
    if (found) {
        takeSafariProfiles(bundleID, *found);
    } else {
        problems_.insert(bundleID, found.error().message);
        log_.error("Safari's profiles couldn't be read: %{public}s"_L1, {found.error().message});
    }
    save();
    searching_.remove(bundleID);
    Q_EMIT changed();
}

void ProfileStore::takeSafariProfiles(const QString &bundleID, const QList<ProfileTarget::SafariProfile> &found)
{
    QList<Profile> fresh;
    for (const ProfileTarget::SafariProfile &profile : found)
        fresh.append(toProfile(profile, bundleID));
    fresh.append(Profile::privateWindow(bundleID));
    setProfiles(ProfileList::merge(fresh, bundleID, profiles()));
    searchedSafari_.insert(bundleID);
    problems_.remove(bundleID);
    log_.notice("Found %ld Safari profiles"_L1, {qint64{found.size()}});
}

void ProfileStore::setHidden(bool isHidden, const Profile &profile)
{
    if (isHidden)
        catalogue_.hidden.insert(profile.id());
    else
        catalogue_.hidden.remove(profile.id());
    save();
    Q_EMIT changed();
}

void ProfileStore::rename(const Profile &profile, const QString &name)
{
    const QString given = name.trimmed();
    if (given.isEmpty() || given == ProfileCatalogue::defaultName(profile))
        catalogue_.customNames.remove(profile.id());
    else
        catalogue_.customNames.insert(profile.id(), given);
    save();
    Q_EMIT changed();
}

void ProfileStore::move(const Browser &browser, const QSet<qsizetype> &positions, qsizetype destination)
{
    const QList<Profile> moved = ProfileList::move(profiles(), browser.bundleID, positions, destination);
    const bool isChanged = moved != profiles();
    log_.notice("%{public}s: moved %{public}s to %ld; changed: %{bool}d"_L1,
                {browser.bundleID, joined(positions), qint64{destination}, isChanged});
    if (!isChanged)
        return;
    setProfiles(moved);
    save();
    Q_EMIT changed();
}

void ProfileStore::setProfiles(const QList<Profile> &profiles)
{
    if (profiles == catalogue_.profiles)
        return;
    catalogue_.profiles = profiles;
    Q_EMIT profilesChanged();
}

void ProfileStore::save()
{
    if (!isLive() || (hasUnreadableFile_ && !keepUnreadableFile()))
        return;
    const SavedState state{profiles(), hidden(), customNames(), searchedSafari()};
    if (const auto written = state.write(savedStatePath_); !written)
        log_.error("Profiles not saved: %{public}s"_L1, {written.error()});
}

bool ProfileStore::keepUnreadableFile()
{
    const QString kept = savedStatePath_ + ".unreadable"_L1;
    QFile::remove(kept);
    QFile file(savedStatePath_);
    if (file.exists() && !file.rename(kept)) {
        log_.error("Profiles not saved: %{public}s"_L1, {file.errorString()});
        return false;
    }
    hasUnreadableFile_ = false;
    log_.notice("Unreadable saved profiles kept as %{public}s"_L1, {kept});
    return true;
}

} // namespace vantrel
