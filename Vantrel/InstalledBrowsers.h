#pragma once

#include "Platform/Workspace.h"
#include "VantrelKit/Browser.h"

#include <QStringList>

namespace vantrel {

/// The browsers among `bundleIDs` that are installed, in the order in which they are shown.
[[nodiscard]] QList<Browser> installedBrowsers(const Workspace &workspace, const QStringList &bundleIDs);

} // namespace vantrel
