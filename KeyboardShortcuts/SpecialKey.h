#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace vantrel {

/// A key that types no character of its own, or that has to be told from one that does. `delete` is the key above
/// Return that PC keyboards call Backspace.
enum class SpecialKey : std::uint8_t {
    returnKey,
    deleteKey,
    deleteForward,
    end,
    escape,
    help,
    home,
    space,
    tab,
    pageUp,
    pageDown,
    upArrow,
    rightArrow,
    downArrow,
    leftArrow,
    f1,
    f2,
    f3,
    f4,
    f5,
    f6,
    f7,
    f8,
    f9,
    f10,
    f11,
    f12,
    f13,
    f14,
    f15,
    f16,
    f17,
    f18,
    f19,
    f20,
    keypad0,
    keypad1,
    keypad2,
    keypad3,
    keypad4,
    keypad5,
    keypad6,
    keypad7,
    keypad8,
    keypad9,
    keypadClear,
    keypadDecimal,
    keypadDivide,
    keypadEnter,
    keypadEquals,
    keypadMinus,
    keypadMultiply,
    keypadPlus,
};

inline constexpr int specialKeyCount = static_cast<int>(SpecialKey::keypadPlus) + 1;

/// None for the codes of other keys.
[[nodiscard]] std::optional<SpecialKey> specialKey(qint64 keyCode);

/// The key's virtual key code (kVK).
[[nodiscard]] std::uint32_t keyCode(SpecialKey key);

/// What stands for the key in a shortcut's description: a symbol, "F1", or a character in a key's outline for the
/// keypad.
[[nodiscard]] QString presentableText(SpecialKey key);

} // namespace vantrel
