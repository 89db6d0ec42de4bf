#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vantrel {

/// The longer side of a thumbnail in pixels, at the most: it is kept with every profile and shown at menu size.
inline constexpr int avatarThumbnailSize = 128;

/// The picture file at a path as a PNG of at most 128 pixels on its longer side, turned upright as its orientation
/// says; smaller pictures keep their size. None when there is no file or it is no picture that Qt reads. Any thread.
[[nodiscard]] std::optional<QByteArray> avatarThumbnailPNG(const QString &path);

} // namespace vantrel
