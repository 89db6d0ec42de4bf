#pragma once

#include "VantrelKit/PictureReader.h"

namespace vantrel {

/// The picture of a Chromium profile. `avatarIcon` is what "Local State" says about it: a file below the data folder or
/// the number of a built-in picture. Both folders are paths.
[[nodiscard]] std::optional<QByteArray> chromiumAvatarPNG(const QString &profileFolder, const QString &dataFolder,
                                                          const std::optional<QString> &avatarIcon,
                                                          const PictureReader &readPicture);

/// The picture of the first entry of a folder, by name, that is one.
[[nodiscard]] std::optional<QByteArray> firstImageInFolder(const QString &folder, const PictureReader &readPicture);

} // namespace vantrel
