#pragma once

#include "Platform/BrowserData.h"
#include "Platform/Linux/BrowserPackage.h"
#include "Platform/Linux/DesktopEntry.h"
#include "Platform/Linux/Environment.h"

#include <QStringList>

namespace vantrel {

/// Where the data of a browser packaged in this way may be, the likeliest folder first. `entry` is the desktop entry
/// that starts it, whose command line may name another folder.
[[nodiscard]] QStringList candidateDataFolders(const BrowserPackage &package, const DesktopEntry &entry,
                                               const Environment &environment);

/// The folders that count among the candidates. A Chromium browser has one: the first with profiles, else the first
/// that exists, else the first. A Firefox can open profiles from all that list some.
[[nodiscard]] QList<BrowserDataFolder> actualDataFolders(const QString &bundleID, const QStringList &candidates);

/// Whether two paths lead to one folder.
[[nodiscard]] bool isSameFolder(const QString &left, const QString &right);

/// Whether a browser of this family has profiles in the folder. A folder that may not be read counts: that it can't be
/// read must come to light.
[[nodiscard]] bool holdsProfiles(const QString &bundleID, const QString &folder);

} // namespace vantrel
