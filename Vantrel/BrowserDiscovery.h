#pragma once

#include "Platform/BrowserData.h"
#include "VantrelKit/Browser.h"
#include "VantrelKit/Profile.h"
#include "VantrelKit/ProfileReader.h"

#include <QHash>
#include <QList>

namespace vantrel {

/// What a discovery run found, by bundle identifier: profiles, or why there are none.
using DiscoveryResults = QHash<QString, ProfileReader::Result>;

/// The profiles in all of a browser's data folders, none twice. The first folder that can't be read ends it. Any
/// thread.
[[nodiscard]] ProfileReader::Result discoverBrowser(const ProfileReader &reader, const BrowserData &data,
                                                    const QString &bundleID);

/// Several browsers side by side, on as many threads as serve; returns when all are done. Safari, whose profiles no
/// file tells, has no result. Any thread.
[[nodiscard]] DiscoveryResults discoverBrowsers(const ProfileReader &reader, const BrowserData &data,
                                                const QList<Browser> &browsers);

/// The list of profiles with a run's results merged in. A browser without a result, or with an error, keeps its
/// profiles; every browser has its private window.
[[nodiscard]] QList<Profile> withResults(const DiscoveryResults &results, const QList<Browser> &browsers,
                                         QList<Profile> profiles);

} // namespace vantrel
