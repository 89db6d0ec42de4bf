#pragma once

#include "VantrelKit/DataFolder.h"
#include "VantrelKit/DiscoveredProfile.h"
#include "VantrelKit/PictureReader.h"

namespace vantrel {

/// The profiles in a Chromium browser's data folder, "Default" first, then by number. Empty when there is no such
/// folder. Damaged files cost a profile its name or its picture, never its place in the list. Any thread.
[[nodiscard]] std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError>
chromiumProfiles(const QString &dataFolder, const PictureReader &readPicture);

/// The one profile of a data folder that is itself the profile; its folder is ".". Empty when there is no such folder.
[[nodiscard]] std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError>
chromiumRootProfile(const QString &dataFolder, const PictureReader &readPicture);

/// The folders among the entries that are profiles, in the order of their profiles.
[[nodiscard]] QList<FolderEntry> chromiumProfileFolders(const QList<FolderEntry> &entries);

/// Where a profile folder's name puts it: "Default" is 0, "Profile 1" is 2; a name without a number comes last.
[[nodiscard]] qint64 folderRank(const QString &folderName);

} // namespace vantrel
