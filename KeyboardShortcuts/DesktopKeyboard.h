#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"
#include "KeyboardShortcuts/KeyboardLayout.h"
#include "Platform/ActivationSource.h"

#include <cstdint>
#include <memory>

namespace vantrel {

/// What a combination does, in the user's words: some desktops show it when they let the user choose the keys.
using HotKeyDescription = std::function<QString(std::uint32_t keyCode, std::uint32_t modifiers)>;

/// Which native number of the toolkit's key events tells the key's place on the keyboard.
enum class KeyNumber : std::uint8_t {
    /// The scan code, an X key code: under Wayland as well.
    scanCode,
    /// The virtual key, a code of the Macintosh keyboard (kVK). Native modifiers are AppKit's flags then.
    virtualKey,
};

/// The keyboard, as the desktop that the program runs on offers it. Neither pointer is null.
struct DesktopKeyboard {
    std::unique_ptr<DesktopHotKeys> hotKeys;
    std::unique_ptr<KeyboardLayout> layout;
    KeyNumber keyNumber = KeyNumber::scanCode;

    /// `source` must outlive it, and is told of the user's acts. Needs a QGuiApplication, which outlives it too.
    [[nodiscard]] static DesktopKeyboard create(ActivationSource &source, HotKeyDescription description);
};

} // namespace vantrel
