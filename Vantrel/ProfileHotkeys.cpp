#include "Vantrel/ProfileHotkeys.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString rawValue(const QString &profileID)
{
    return "profile."_L1 + profileID;
}

} // namespace

ProfileHotkeys::ProfileHotkeys(const ProfileStore &store, ProfileOpener &opener, KeyboardShortcuts &shortcuts)
    : store_(store),
      opener_(opener),
      shortcuts_(shortcuts)
{
}

void ProfileHotkeys::start()
{
    registerProfileHotkeys();
    connect(&store_, &ProfileStore::profilesChanged, this, &ProfileHotkeys::registerProfileHotkeys);
}

ShortcutName ProfileHotkeys::shortcutName(const Profile &profile)
{
    return {rawValue(profile.id())};
}

QList<ShortcutName> ProfileHotkeys::profileShortcutNames() const
{
    QList<ShortcutName> names;
    for (const Profile &profile : store_.profiles())
        names.append(shortcutName(profile));
    return names;
}

void ProfileHotkeys::registerProfileHotkeys()
{
    for (const Profile &profile : store_.profiles()) {
        const QString id = profile.id();
        if (registeredIDs_.contains(id))
            continue;
        registeredIDs_.insert(id);
        shortcuts_.onKeyUp(shortcuts_.name(rawValue(id)), [this, id] { open(id); });
    }
}

void ProfileHotkeys::open(const QString &profileID)
{
    const QList<Profile> profiles = store_.profiles();
    const auto found = std::ranges::find(profiles, profileID, &Profile::id);
    if (found != profiles.end())
        opener_.open(*found, {}, ProfileOpener::Source::shortcut);
}

} // namespace vantrel
