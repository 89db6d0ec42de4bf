#pragma once

#include "Vantrel/ProfileStore.h"

namespace vantrel {

/// Moving one profile among those of its browser.
struct ProfileMove {
    enum class Direction : std::uint8_t { up, down };

    Browser browser;
    qsizetype position = 0;
    /// Counts as in `ProfileList::move`.
    qsizetype destination = 0;

    /// One place up or down; none for the first or last profile, and for one that the settings don't show.
    [[nodiscard]] static std::optional<ProfileMove> byOne(const ProfileStore &store, const QString &profileID,
                                                          Direction direction);

    void apply(ProfileStore &store) const { store.move(browser, {position}, destination); }
};

/// Where a profile goes that is dragged to a height: as `ProfileList::move` counts, the nearest gap between the rows of
/// its browser. Rows are counted from `top`, each `rowHeight` high.
[[nodiscard]] qsizetype dropDestination(int height, int top, int rowHeight, qsizetype rowCount);

} // namespace vantrel
