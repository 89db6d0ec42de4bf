#pragma once

#include <QImage>

#include <cstdint>

namespace vantrel {

/// Which colour the symbol has to have on a panel.
enum class TrayColor : std::uint8_t {
    /// For dark panels.
    light,
    /// For light panels.
    dark,
    /// Readable on either: nobody says how the panel looks.
    unknown,
};

/// The program's symbol for the tray, a square with a side of that many device pixels.
[[nodiscard]] QImage trayImage(int pixels, TrayColor color);

} // namespace vantrel
