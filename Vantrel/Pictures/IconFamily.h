#pragma once

#include <QByteArray>
#include <QImage>

#include <functional>

namespace vantrel {

/// An ICNS file with an icon in seven sizes, each in the form that macOS takes from the icons of applications: 16
/// pixels as run-length encoded planes; 32, 64, 128, 256, 512 and 1024 as PNG. `draw` makes a square with a side of
/// that many pixels; a size for which it has none is left out. Empty without any image.
[[nodiscard]] QByteArray iconFamilyFile(const std::function<QImage(int pixels)> &draw);

} // namespace vantrel
