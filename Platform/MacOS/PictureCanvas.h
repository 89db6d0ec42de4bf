#pragma once

#include <QImage>

#include <functional>

namespace vantrel {

/// A transparent square with a side of that many device pixels, after `draw` has drawn on it with the system's own
/// calls: a graphics context is current meanwhile in which a unit is a pixel and y grows upwards. Null for less than
/// one pixel. Main thread only.
[[nodiscard]] QImage drawnPicture(int pixels, const std::function<void()> &draw);

} // namespace vantrel
