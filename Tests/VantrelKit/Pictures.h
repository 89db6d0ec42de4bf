#pragma once

#include "Tests/VantrelKit/Printing.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <optional>

/// Pictures for the tests of thumbnails, made in memory.
namespace vantrel::test {

/// Four fields of one colour each: red and green above, blue and white below.
[[nodiscard]] QImage fourFields(QSize size);

/// That picture as a file of a format, in the best quality.
[[nodiscard]] QByteArray picture(QSize size, const char *format);

/// A JPEG with the segment in front in which a camera says how it was held: 1 to 8, as Exif numbers the ways.
[[nodiscard]] QByteArray withOrientation(const QByteArray &jpeg, quint8 orientation);

/// A GIF of one red pixel, followed by a second frame that is blue.
[[nodiscard]] QByteArray animatedGif();

/// The fields' colours in the four corners, read from left to right and from above: "rgbw" for the picture above.
[[nodiscard]] std::string corners(const QImage &image);

/// The size of a PNG; an invalid one when there is none or it is no PNG.
[[nodiscard]] QSize sizeOf(const std::optional<QByteArray> &png);

} // namespace vantrel::test
