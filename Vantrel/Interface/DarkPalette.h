#pragma once

#include <QPalette>

namespace vantrel {

/// The colours of dark windows in the toolkit's own style.
[[nodiscard]] QPalette darkPalette();

/// Whether texts are lighter than what they stand on.
[[nodiscard]] bool isDark(const QPalette &palette);

/// Makes the program's windows dark, or gives them the colours back that the toolkit chose. Where the toolkit's are
/// dark already they stay.
void setDark(bool isDark);

} // namespace vantrel
