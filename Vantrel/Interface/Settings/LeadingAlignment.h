#pragma once

#include <QWidget>

namespace vantrel {

/// The side at which lines begin where the widget is. Texts that are left to themselves choose it by their own script,
/// which makes columns of names ragged.
[[nodiscard]] inline Qt::Alignment leading(const QWidget &widget)
{
    return Qt::AlignAbsolute | (widget.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
}

} // namespace vantrel
