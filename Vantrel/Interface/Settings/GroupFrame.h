#pragma once

#include <QPainter>
#include <QPalette>

namespace vantrel {

/// The frame around what belongs together in the settings.
void drawGroupFrame(QPainter &painter, const QRect &frame, const QPalette &palette);

/// The colour of its line.
[[nodiscard]] QColor groupLineColor(const QPalette &palette);

} // namespace vantrel
