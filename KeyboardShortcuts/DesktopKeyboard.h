#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"
#include "KeyboardShortcuts/KeyboardLayout.h"
#include "Platform/ActivationSource.h"

#include <memory>

namespace vantrel {

/// What a combination does, in the user's words: some desktops show it when they let the user choose the keys.
using HotKeyDescription = std::function<QString(std::uint32_t keyCode, std::uint32_t modifiers)>;

/// The keyboard, as the desktop that the program runs on offers it. Neither part is null.
struct DesktopKeyboard {
    std::unique_ptr<DesktopHotKeys> hotKeys;
    std::unique_ptr<KeyboardLayout> layout;

    /// `source` must outlive it, and is told of the user's acts. Needs a QGuiApplication, which outlives it too.
    [[nodiscard]] static DesktopKeyboard create(ActivationSource &source, HotKeyDescription description);
};

} // namespace vantrel
