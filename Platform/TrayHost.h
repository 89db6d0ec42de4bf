#pragma once

#include <cstdint>

namespace vantrel {

/// What takes the symbol of a program that draws the menu itself.
enum class TrayHost : std::uint8_t {
    /// Shows the picture as it is, and says when it is clicked.
    plain,
    /// Colours the picture's shape as it likes, and opens the menu at a click with any button.
    menuBar,
};

} // namespace vantrel
