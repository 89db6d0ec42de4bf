#pragma once

#include "Platform/Menu.h"
#include "Vantrel/ProfileStore.h"

namespace vantrel {

/// What the rows of the program's menu do and show beyond the store.
struct ProfileMenuActions {
    std::function<void(const Profile &profile)> open;
    std::function<void()> findProfiles;
    std::function<void()> showSettings;
    std::function<void()> quit;
    /// A profile's icon as a square with a side of that many device pixels.
    std::function<QImage(const Profile &profile, int pixels)> icon;
    /// The same as a PNG file.
    std::function<QByteArray(const Profile &profile, int pixels)> iconPNG;
    /// A profile's global shortcut; empty for none. May itself be empty, where there are no shortcuts.
    std::function<QKeySequence(const Profile &profile)> shortcut = {};
};

/// The program's menu as it is now: the profiles that aren't hidden below their browsers, then the fixed commands.
[[nodiscard]] Menu profileMenu(const ProfileStore &store, const ProfileMenuActions &actions);

} // namespace vantrel
