#pragma once

#include <cstdint>
#include <optional>

namespace vantrel {

/// X numbers the keys of evdev from here: the X key code of a key is its evdev code and this. Qt's native scan codes
/// are X key codes, also under Wayland.
inline constexpr std::uint32_t firstXKeyCode = 8;

/// The key's number in Linux's event interface (KEY_A is 30). The argument is a virtual key code of the Macintosh
/// keyboard (kVK); none for numbers without a key, and for Fn, which X has no room for.
[[nodiscard]] std::optional<std::uint32_t> evdevKeyCode(std::uint32_t keyCode) noexcept;

/// The way back: none for keys that Macintosh keyboards don't have, such as Pause.
[[nodiscard]] std::optional<std::uint32_t> keyCodeOfEvdev(std::uint32_t evdevCode) noexcept;

} // namespace vantrel
