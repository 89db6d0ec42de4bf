#include "Vantrel/Interface/Settings/GroupFrame.h"

#include "Vantrel/Interface/DarkPalette.h"

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
    const QColor window = palette.color(QPalette::Window);
    // A dark window's fields are darker than itself: a group is lighter than both.
    painter.setBrush(isDark(palette) ? window.lighter(125) : palette.color(QPalette::Base));
    painter.drawRoundedRect(QRectF(frame).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace vantrel
