#pragma once

#include "Platform/LauncherWriter.h"
#include "Vantrel/Pictures/LauncherIcon.h"
#include "VantrelKit/Profile.h"

namespace vantrel {

/// The launcher of a profile, with its browser's private window beside it unless it is one itself. `title` is the
/// profile with its browser, as the user reads it.
[[nodiscard]] Launcher launcherOf(const Profile &profile, const QString &title, LauncherIcon icon);

} // namespace vantrel
