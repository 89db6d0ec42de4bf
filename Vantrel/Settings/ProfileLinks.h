#pragma once

#include "Platform/SystemConventions.h"
#include "Vantrel/ProfileStore.h"

namespace vantrel {

/// A command that opens a web page in a profile through its link, which scripts can take over: with Safari's profile
/// "Work" where there is Safari, else with the first profile that there is.
[[nodiscard]] QString linkExample(const ProfileStore &store, const SystemConventions &conventions, bool hasSafari);

/// The link of a profile for people to pass on. A private window, which has no name, is called "Private" in it.
[[nodiscard]] QString linkToCopy(const Profile &profile);

/// The command that opens a profile, for desktops whose own settings can give a command a keyboard shortcut.
[[nodiscard]] QString openCommand(const QString &profileID);

} // namespace vantrel
