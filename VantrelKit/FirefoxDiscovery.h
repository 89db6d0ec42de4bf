#pragma once

#include "VantrelKit/DiscoveredProfile.h"
#include "VantrelKit/ProfileDiscoveryError.h"

#include <QList>

namespace vantrel {

/// The profiles in a Firefox browser's data folder: those of its profile-groups database, or of "profiles.ini" when the
/// database has none. Empty when there is no such folder. `sqlite3` is the program's path. Any thread; blocks while it
/// runs.
[[nodiscard]] std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError> firefoxProfiles(const QString &dataFolder,
                                                                                             const QString &sqlite3);

} // namespace vantrel
