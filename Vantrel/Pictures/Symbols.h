#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace vantrel {

/// A symbol of the program's own in one colour, on a transparent square with a side of that many device pixels. Its
/// name is that of its file in Resources/Symbols, as "eye.slash". A null image for another name, or for less than one
/// pixel.
[[nodiscard]] QImage symbolImage(const QString &name, int pixels, const QColor &color);

/// The same in the colours in which it was drawn; also "app.kestrune.Vantrel", the program's icon.
[[nodiscard]] QImage drawnImage(const QString &name, int pixels);

} // namespace vantrel
