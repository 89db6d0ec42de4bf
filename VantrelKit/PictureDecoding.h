#pragma once

#include <QIODevice>
#include <QImage>

namespace vantrel {

/// The picture in a file of any format that Qt can read, told by its content: browsers name such files without an
/// extension or with the wrong one. Upright; null when there is none. From any thread.
[[nodiscard]] QImage decodedPicture(QIODevice &file);

} // namespace vantrel
