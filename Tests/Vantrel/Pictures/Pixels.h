#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

/// What tests measure in images.
namespace vantrel::test {

/// How much of a pixel's colour is white rather than the opaque background: 0 to 1.
[[nodiscard]] double whiteness(const QColor &pixel, const QColor &background);

/// Where white was drawn on an opaque background, to fractions of a pixel: a border that is half white counts half.
/// Empty when there is none.
[[nodiscard]] QRectF whiteBounds(const QImage &image, const QColor &background);

/// The same for whatever isn't transparent.
[[nodiscard]] QRectF opaqueBounds(const QImage &image);

/// The image as it looks on a background.
[[nodiscard]] QImage on(const QImage &image, const QColor &background);

/// From 1, the same, to 21, black on white; as the Web Content Accessibility Guidelines define it. Letters should have
/// 4.5, symbols 3.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

/// The share of an image's pixels, 0 to 1, that on this background have at least that contrast with it.
[[nodiscard]] double readableShare(const QImage &image, const QColor &background, double leastContrast);

} // namespace vantrel::test
