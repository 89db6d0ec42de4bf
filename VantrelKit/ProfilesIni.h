#pragma once

#include "VantrelKit/DiscoveredProfile.h"

#include <QList>

namespace vantrel {

/// The profiles in the text of Firefox's "profiles.ini", in the order of their sections. Relative paths are below
/// `dataFolder`. Lines that can't be read are passed over. The format is that of Mozilla's `nsINIParser`.
[[nodiscard]] QList<DiscoveredProfile> parseProfilesINI(const QString &text, const QString &dataFolder);

} // namespace vantrel
