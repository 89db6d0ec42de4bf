#include "Vantrel/Interface/MenuIconEngine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vantrel {

void MenuIconEngine::paint(QPainter *painter, const QRect &rectangle, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    const int side = std::min(rectangle.width(), rectangle.height());
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1;
    QRect square(0, 0, side, side);
    square.moveCenter(rectangle.center());
    painter->drawImage(square, drawing_(static_cast<int>(std::ceil(side * ratio))));
}

QPixmap MenuIconEngine::pixmap(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    return QPixmap::fromImage(drawing_(std::min(size.width(), size.height())));
}

QPixmap MenuIconEngine::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/)
{
    // The size is in device pixels already.
    return pixmap(size, mode, state);
}

} // namespace vantrel
