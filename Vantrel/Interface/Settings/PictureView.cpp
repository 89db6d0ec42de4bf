#include "Vantrel/Interface/Settings/PictureView.h"

#include <QEvent>
#include <QPainter>

#include <cmath>

namespace vantrel {

PictureView::PictureView(double side, Drawing drawing, QWidget *parent)
    : QWidget(parent),
      side_(side),
      drawing_(std::move(drawing))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Clicks are those of what it lies on.
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PictureView::setDrawing(Drawing drawing)
{
    drawing_ = std::move(drawing);
    update();
}

void PictureView::setOpacity(double opacity)
{
    if (std::exchange(opacity_, opacity) != opacity)
        update();
}

QSize PictureView::sizeHint() const
{
    const int side = static_cast<int>(std::lround(fontMetrics().height() * side_));
    return {side, side};
}

void PictureView::paintEvent(QPaintEvent * /*event*/)
{
    if (!drawing_)
        return;
    const QImage image = drawing_(static_cast<int>(std::ceil(width() * devicePixelRatioF())));
    if (image.isNull())
        return;
    QPainter painter(this);
    painter.setOpacity(opacity_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), image);
}

void PictureView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

} // namespace vantrel
