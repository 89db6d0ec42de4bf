#include "Vantrel/Interface/Settings/GroupFrame.h"

namespace vantrel {

QColor groupLineColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.15F);
    return color;
}

void drawGroupFrame(QPainter &painter, const QRect &frame, const QPalette &palette)
{
    constexpr double radius = 6;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(groupLineColor(palette));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(QRectF(frame).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace vantrel
