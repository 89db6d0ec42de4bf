#pragma once

#include "Platform/BrowserData.h"
#include "Platform/Workspace.h"
#include "Vantrel/BrowserDiscovery.h"
#include "Vantrel/ProfileCatalogue.h"

#include <QStringList>

#include <optional>

namespace vantrel {

/// A catalogue as it is now, and what was in the way of making it.
struct LoadedCatalogue {
    ProfileCatalogue catalogue;
    DiscoveryResults results;
    /// Why the saved state could not be read; the catalogue is then without it.
    std::optional<DecodingError> savedStateError;
};

/// Finds the installed ones among `bundleIDs`, reads their profiles and merges them into the saved order. Nothing is
/// written. Blocks while it reads; any thread.
[[nodiscard]] LoadedCatalogue loadCatalogue(const Workspace &workspace, const BrowserData &data,
                                            const ProfileReader &reader, const QString &savedStatePath,
                                            const QStringList &bundleIDs);

} // namespace vantrel
