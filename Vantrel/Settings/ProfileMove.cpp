#include "Vantrel/Settings/ProfileMove.h"

#include <algorithm>

namespace vantrel {

std::optional<ProfileMove> ProfileMove::byOne(const ProfileStore &store, const QString &profileID, Direction direction)
{
    const auto profile = std::ranges::find(store.profiles(), profileID, &Profile::id);
    const Browser *browser = profile == store.profiles().end() ? nullptr : store.browser(*profile);
    if (!browser)
        return std::nullopt;
    const QList<Profile> group = store.profilesOf(browser->bundleID);
    const qsizetype position = std::ranges::find(group, profileID, &Profile::id) - group.begin();
    // A row leaves a gap behind: below the next one is two places further.
    const qsizetype destination = direction == Direction::up ? position - 1 : position + 2;
    if (destination < 0 || destination > group.size())
        return std::nullopt;
    return ProfileMove{.browser = *browser, .position = position, .destination = destination};
}

qsizetype dropDestination(int height, int top, int rowHeight, qsizetype rowCount)
{
    const qsizetype below = std::max(0, height - top + (rowHeight / 2));
    return std::min(below / std::max(1, rowHeight), rowCount);
}

} // namespace vantrel
