#pragma once

#include <cstdint>
#include <optional>

namespace vantrel {

/// What the keyboard did, free of any toolkit.
struct KeyEvent {
    enum class Type : std::uint8_t {
        keyDown,
        keyUp,
        /// A modifier key went down or up.
        flagsChanged,
    };

    Type type = Type::keyDown;
    /// The key's virtual key code (kVK); none for keys that Macintosh keyboards don't have.
    std::optional<std::uint32_t> keyCode = {};
    /// AppKit's flags of the modifiers that are held.
    std::uint32_t modifierFlags = 0;
};

} // namespace vantrel
