#pragma once

#include <QRectF>
#include <QSizeF>

namespace vantrel {

/// Where a picture of that size lies in a square with a side of that length: as large as it can be without being cut or
/// distorted, in the middle. Empty for a picture without an extent.
[[nodiscard]] inline QRectF fittedRect(QSizeF picture, qreal side)
{
    if (picture.isEmpty())
        return {};
    const QSizeF size = picture.scaled(side, side, Qt::KeepAspectRatio);
    return {(side - size.width()) / 2, (side - size.height()) / 2, size.width(), size.height()};
}

} // namespace vantrel
