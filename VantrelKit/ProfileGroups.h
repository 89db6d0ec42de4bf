#pragma once

#include "VantrelKit/DiscoveredProfile.h"
#include "VantrelKit/ProfileDiscoveryError.h"

#include <QList>

namespace vantrel {

/// The profiles in Firefox's profile-groups database, the first "*.sqlite" of the folder "Profile Groups", read by
/// running the `sqlite3` program at the path given. Empty when there is no database, no such program, or the program
/// can't read the database, as when it is locked. Blocks until the program has ended. Any thread.
[[nodiscard]] std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError> profileGroupRows(const QString &dataFolder,
                                                                                              const QString &sqlite3);

} // namespace vantrel
