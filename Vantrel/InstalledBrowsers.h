#pragma once

#include "Platform/Workspace.h"
#include "VantrelKit/Browser.h"

#include <QStringList>

namespace vantrel {

/// The browser, if it is known and installed. Any thread.
[[nodiscard]] std::optional<Browser> installedBrowser(const Workspace &workspace, const QString &bundleID);

/// The browsers among `bundleIDs` that are installed, in the order in which they are shown.
[[nodiscard]] QList<Browser> installedBrowsers(const Workspace &workspace, const QStringList &bundleIDs);

} // namespace vantrel
