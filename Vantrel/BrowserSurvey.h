#pragma once

#include "Platform/Workspace.h"
#include "Vantrel/BrowserDiscovery.h"

#include <QStringList>

namespace vantrel {

/// The installed browsers and what a discovery run over them found.
struct BrowserSurvey {
    /// In the order in which they are shown.
    QList<Browser> browsers;
    DiscoveryResults results;

    /// Finds the installed ones among `bundleIDs` and reads their profiles, several browsers side by side: each is read
    /// as soon as it is found. Blocks; any thread.
    [[nodiscard]] static BrowserSurvey make(const Workspace &workspace, const BrowserData &data,
                                            const ProfileReader &reader, const QStringList &bundleIDs);
};

} // namespace vantrel
